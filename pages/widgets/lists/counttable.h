#pragma once

#include <QMap>
#include <QTreeWidget>

/// A short table of numbers: as high as its rows, all of them whole, and with columns that hold
/// their headers, in every font.
class CountTable : public QTreeWidget
{
    Q_OBJECT

public:
    /// One column per header; room for `rowCount` rows. `widths` are those of some columns, in
    /// pixels, for the usual font.
    CountTable(const QStringList& headers, int rowCount, QMap<int, int> widths, QWidget* parent);

    /// No lower than this, for what stands beside it.
    void setLeastHeight(int height);

protected:
    void changeEvent(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private Q_SLOTS:
    void fitHeight();

private:
    void setWidths();
    int widthFor(int column) const;

    int m_rowCount;
    QMap<int, int> m_widths; ///< by column
    int m_leastHeight = 0;
};
