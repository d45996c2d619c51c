#include "installpage.h"

#include "presetfilesender.h"

void InstallPage::identifyButtonClicked(const QString& ipAddress)
{
    identified.append(ipAddress);
}

void InstallPage::senderLogin()
{
    const auto senders = findChildren<PresetFileSender*>();
    for (const auto* sender : senders) {
        if (sender->isRunning() && !sender->isLoggedIn() && !sender->isLoginCancelled()) {
            return;
        }
    }
    for (auto* sender : senders) {
        sender->sendPresets();
    }
}
