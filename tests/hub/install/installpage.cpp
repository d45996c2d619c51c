#include "installpage.h"

void InstallPage::identifyButtonClicked(const QString& ipAddress)
{
    identified.append(ipAddress);
}
