#pragma once

#include <QStringList>
#include <QWidget>

/// Stands for the page that the senders and their dialogs belong to.
class InstallPage : public QWidget
{
    Q_OBJECT

public:
    using QWidget::QWidget;

    QStringList identified; ///< the hubs whose identify button was pressed in a dialog

public Q_SLOTS:
    void identifyButtonClicked(const QString& ipAddress);
    /// Starts the transfers once every sender of the page has been answered for. A test connects
    /// it where it wants that.
    void senderLogin();
};
