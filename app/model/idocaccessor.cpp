#include "idocaccessor.h"

IDocAccessor::~IDocAccessor() = default;
