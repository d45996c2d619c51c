#include "alldialogs.h"

#include "devicenamedialog.h"
#include "initialpassworddialog.h"
#include "logindialog.h"
#include "networkdialog.h"
#include "resumedialog.h"

#include <QMap>
#include <QWidget>

#include <functional>

namespace {

const QString hubAddress = QStringLiteral("192.168.100.200");
const QString hubName = QStringLiteral("PX-HB-conference-hall-1");

using Maker = std::function<QDialog*(QWidget*)>;

QDialog* networkDialog(QWidget* parent, const QList<NicRow>& rows)
{
    auto* dialog = new NetworkDialog(parent);
    dialog->fill(rows, 4);
    return dialog;
}

LoginDialog* loginDialog(QWidget* parent, bool refused)
{
    auto* dialog = new LoginDialog(parent, hubAddress, hubName);
    dialog->setErrorVisible(refused);
    return dialog;
}

const QMap<QString, Maker>& makers()
{
    static const NicRow nic{QStringLiteral("Ethernet"), QStringLiteral("192.168.100.200"),
                            QStringLiteral("255.255.255.255"), 4};
    static const QMap<QString, Maker> all{
        {QStringLiteral("network"),
         [](QWidget* parent) {
             return networkDialog(parent, {nic, nic});
         }},
        {QStringLiteral("no network"), [](QWidget* parent) { return networkDialog(parent, {}); }},
        {QStringLiteral("resume"), [](QWidget* parent) { return new ResumeDialog(parent); }},
        {QStringLiteral("name"),
         [](QWidget* parent) { return new DeviceNameDialog(QStringLiteral("Hub-1"), parent); }},
        {QStringLiteral("log-in"), [](QWidget* parent) { return loginDialog(parent, false); }},
        {QStringLiteral("log-in refused"),
         [](QWidget* parent) { return loginDialog(parent, true); }},
        {QStringLiteral("first password"),
         [](QWidget* parent) { return new InitialPasswordDialog(parent, hubAddress, hubName); }}};
    return all;
}

} // namespace

QStringList dialogNames()
{
    return makers().keys();
}

QDialog* makeDialog(const QString& name, QWidget* parent)
{
    return makers().value(name)(parent);
}

std::unique_ptr<QWidget> makeWindow()
{
    auto window = std::make_unique<QWidget>();
    window->setGeometry(20, 40, 800, 460);
    window->show();
    return window;
}
