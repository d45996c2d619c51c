#pragma once

#include <QComboBox>

/// A combo box for a cell of a list. The wheel scrolls the list, as it does between the boxes, and
/// never changes a choice unnoticed: a thousand devices are scrolled past with the pointer over
/// these boxes.
class ListComboBox : public QComboBox
{
    Q_OBJECT

public:
    explicit ListComboBox(QWidget* parent = nullptr);

    /// Tells screen readers what is chosen here, and for which device. It is the accessible name;
    /// where they are told the chosen text in its place, they find it as the description, before
    /// what the tool tip says by then.
    void setPurpose(const QString& purpose);

protected:
    void wheelEvent(QWheelEvent* event) override;
};
