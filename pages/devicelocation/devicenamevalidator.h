#pragma once

#include <QRegularExpressionValidator>
#include <QStringList>

/// Lets letters, digits and hyphens into the name of a device.
///
/// A device may come with a label that holds other characters. As it came it is acceptable. Edited
/// it is intermediate until the last of them is gone: those may stay, and go, but no further one
/// comes in. A line edit takes back an edit that is invalid only if what it showed before was not,
/// so a text that is left of the label must not count as invalid.
class DeviceNameValidator : public QRegularExpressionValidator
{
    Q_OBJECT

public:
    /// `label` is the present label.
    DeviceNameValidator(const QString& label, QObject* parent);

    State validate(QString& text, int& position) const override;

public Q_SLOTS:
    /// To be connected to the line edit's textChanged().
    void textShown(const QString& text);

private:
    bool mayStay(const QString& text) const;

    QString m_label;
    QStringList m_shown; ///< the label and all texts since: any of them may come back by undo
};
