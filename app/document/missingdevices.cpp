#include "missingdevices.h"

#include "savedwork.h"

#include <QCoreApplication>
#include <QLabel>
#include <QLayout>
#include <QMessageBox>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>

#include <algorithm>

namespace {

// A file may name any number of devices at any length; a box of megabytes would stand still.
constexpr qsizetype maxLines = 1000;
constexpr qsizetype maxFieldLength = 100;

QString field(const QString& text)
{
    return text.left(maxFieldLength);
}

/// Puts the text of a box that would not fit on the screen behind a scroll bar.
void keepOnScreen(QMessageBox& box)
{
    auto* label = box.findChild<QLabel*>(QStringLiteral("qt_msgbox_label"));
    const QSize room = box.screen()->availableSize() * 2 / 3;
    if (label == nullptr || label->sizeHint().height() <= room.height()) {
        return;
    }
    auto* scroller = new QScrollArea(&box);
    const int barWidth = scroller->verticalScrollBar()->sizeHint().width();
    scroller->setMinimumSize((label->sizeHint() + QSize(barWidth, 0)).boundedTo(room));
    scroller->setFrameShape(QFrame::NoFrame);
    delete box.layout()->replaceWidget(label, scroller);
    scroller->setWidget(label);
}

} // namespace

QString missingDevicesText(const QList<SavedDevice>& devices)
{
    const QString line =
        QCoreApplication::translate("MissingDevices", "Hostname:%1,Model:%2,IP=%3\n");
    QString lines;
    for (const SavedDevice& device : devices.first(std::min(devices.size(), maxLines))) {
        // All three in one go: a label may itself look like a placeholder.
        lines += line.arg(field(device.label), field(device.modelName), field(device.ipAddress));
    }
    return QCoreApplication::translate(
               "MissingDevices", "The following device cannot be found. Please check that it is "
                                 "powered and connected to the network.\n\n%1")
        .arg(lines);
}

void warnOfMissingDevices(const QList<SavedDevice>& devices)
{
    QMessageBox box(QMessageBox::Warning,
                    QCoreApplication::translate("MissingDevices", "Missing device"),
                    missingDevicesText(devices), QMessageBox::Ok);
    keepOnScreen(box);
    box.exec();
}
