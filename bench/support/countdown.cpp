#include "countdown.h"

void Countdown::wait()
{
    if (m_left > 0) {
        m_loop.exec();
    }
}

void Countdown::done()
{
    --m_left;
    if (m_left == 0) {
        m_loop.quit();
    }
}
