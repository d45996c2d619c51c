#include "ipagecontroller.h"

IPageController::~IPageController() = default;
