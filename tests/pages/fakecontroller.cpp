#include "fakecontroller.h"

void FakeController::next()
{
    ++nexts;
}

void FakeController::back()
{
    ++backs;
}

void FakeController::quit()
{
    ++quits;
}

void FakeController::setInstallDone(bool done)
{
    installDone = done;
}
