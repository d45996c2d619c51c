#pragma once

#include <QPixmap>
#include <QWidget>

class QLabel;
class QPushButton;

/// What the layout list shows for one room layout: its picture and a button that removes it.
class SceneItem : public QWidget
{
    Q_OBJECT

public:
    /// `roomGroup` is the text that names the layout, for example "1+2/3/4".
    SceneItem(const QPixmap& thumbnail, const QString& roomGroup, QWidget* parent = nullptr);

    const QString& roomGroup() const;
    /// The picture shown.
    QPixmap thumbnail() const;
    /// Where the Tab key stops here.
    QWidget* tabStop() const;

Q_SIGNALS:
    void removeClicked();

private:
    QLabel* m_thumbnail;
    QPushButton* m_removeButton;
    QString m_roomGroup;
};
