#pragma once

#include "benchdocument.h"

#include <QWidget>

class QStackedWidget;
class QTreeWidget;
class QTreeWidgetItem;

/// Step 5 in the plainest way: the same texts, lists, columns, colours, rows and buttons in the
/// rows, from plain lists. Of the panels behind the list only the one that is shown has lists; the
/// devices of all are counted.
class BareDeviceSets : public QWidget
{
    Q_OBJECT

public:
    /// `hall` is not owned and is used here only.
    BareDeviceSets(const HallRecords& hall, QWidget* parent);

private Q_SLOTS:
    void identify() {}
    void remove() {}

private:
    void layOut();
    void addGroups(const HallRecords& hall);
    void buildPanel(QWidget* panel, const SceneInfo& layout, const QList<DeviceData>& devices);
    QTreeWidget* makeDeviceTree(QWidget* panel, const QList<DeviceData>& devices);
    void addButtons(QTreeWidget* tree, QTreeWidgetItem* item);

    QTreeWidget* m_groups;
    QStackedWidget* m_panels;
};

/// A button that paints itself as the wizard's do: an icon, or a text in a frame.
class BareButton : public QWidget
{
    Q_OBJECT

public:
    explicit BareButton(const QString& text);

Q_SIGNALS:
    void clicked();

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QString m_text; ///< empty: the icon
};
