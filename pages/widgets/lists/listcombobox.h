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

protected:
    void wheelEvent(QWheelEvent* event) override;
};
