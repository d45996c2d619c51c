#pragma once

#include "benchdocument.h"

#include <QWidget>

class QStackedWidget;
class QTreeWidget;
class QTreeWidgetItem;
class QVBoxLayout;

/// Steps 5 and 6 in the plainest way: the same texts, lists, columns, colours, rows and widgets in
/// the rows. Every stored record is handed over once in a map under the same keys, as any page gets
/// it. Of the panels behind the list only the one that is shown has lists.
class BareGroupPage : public QWidget
{
    Q_OBJECT

public:
    enum class Step
    {
        DeviceSets,
        SpeakerPositions
    };

    /// `hall` is not owned and is used here only.
    BareGroupPage(Step step, const HallRecords& hall, QWidget* parent);

private Q_SLOTS:
    void identify() {}
    void remove() {}
    void choosePosition() {}

private:
    void layOut();
    void addGroups(const HallRecords& hall);
    QList<DeviceData> devicesOfPanel(const HallRecords& hall, int set, int layout, int room) const;
    void buildPanel(QWidget* panel, const SceneInfo& layout, const QList<DeviceData>& devices);
    void addDeviceTrees(QWidget* panel, QVBoxLayout* column, const QList<DeviceData>& devices);
    QTreeWidget* makeDeviceTree(QWidget* panel, const QList<DeviceData>& devices);
    void addRowWidgets(QTreeWidget* tree, QTreeWidgetItem* item);

    Step m_step;
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
