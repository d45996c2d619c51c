#pragma once

#include "ipagecontroller.h"

/// Counts what a page asks of the wizard, and does none of it.
class FakeController : public IPageController
{
public:
    void next() override;
    void back() override;
    void quit() override;
    void setInstallDone(bool done) override;

    int nexts = 0;
    int backs = 0;
    int quits = 0;
    bool installDone = false;
};
