#include "ipage.h"

IPage::~IPage() = default;
