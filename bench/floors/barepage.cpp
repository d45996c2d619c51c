#include "barepage.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QPushButton>
#include <QTreeWidget>

#include <cmath>

namespace {

constexpr int squareSide = 20;
constexpr int pictureSide = 64;

// Cells that paint themselves: one for a button in a row, more in a square for a grid.
class PaintedSquares : public QWidget
{
public:
    PaintedSquares(int side, int squares, QWidget* parent = nullptr)
        : QWidget(parent)
        , m_squares(squares)
        , m_perRow(qRound(std::sqrt(squares)))
    {
        setFixedSize(side, side);
    }

protected:
    void paintEvent(QPaintEvent* /*event*/) override
    {
        QPainter painter(this);
        const int side = width() / m_perRow;
        for (int index = 0; index < m_squares; ++index) {
            const QRect square(index % m_perRow * side, index / m_perRow * side, side, side);
            painter.fillRect(square, QColor(0x44, 0x84, 0x47));
            painter.drawText(square, Qt::AlignCenter, QStringLiteral("1"));
        }
    }

private:
    int m_squares;
    int m_perRow;
};

QWidget* makeOverlay()
{
    auto* overlay = new QWidget;
    auto* layout = new QHBoxLayout(overlay);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addStretch(1);
    layout->addWidget(new PaintedSquares(squareSide, 1));
    return overlay;
}

QWidget* makeRowWidget(QChar kind)
{
    if (kind == u'c') {
        auto* combo = new QComboBox;
        combo->addItems({QStringLiteral("No Assign"), QStringLiteral("1"), QStringLiteral("2"),
                         QStringLiteral("3"), QStringLiteral("4")});
        return combo;
    }
    if (kind == u'b') {
        return new QPushButton(QStringLiteral("Remove"));
    }
    if (kind == u'e') {
        return new QLineEdit(QStringLiteral("Preset name"));
    }
    return kind == u'o' ? makeOverlay() : new PaintedSquares(squareSide, 1);
}

QTreeWidgetItem* makeRow(const BareTree& shape, int row)
{
    QStringList texts;
    for (int column = 0; column < shape.columns; ++column) {
        texts.append(QStringLiteral("Text %1").arg(row));
    }
    return new QTreeWidgetItem(texts);
}

} // namespace

QTreeWidget* makeBareTree(const BareTree& shape, QWidget* parent)
{
    auto* tree = new QTreeWidget(parent);
    tree->setColumnCount(shape.columns);
    tree->setRootIsDecorated(false);
    tree->setUniformRowHeights(true);
    QList<QTreeWidgetItem*> items;
    for (int row = 0; row < shape.rows; ++row) {
        items.append(makeRow(shape, row));
    }
    QPixmap picture(pictureSide, pictureSide);
    picture.fill(Qt::darkGray);
    if (shape.pictures > 0) {
        tree->setIconSize(picture.size());
    }
    for (int row = 0; row < shape.pictures; ++row) {
        items.at(row)->setIcon(0, picture);
    }
    tree->addTopLevelItems(items);
    for (QTreeWidgetItem* item : items) {
        for (int column = 0; column < shape.widgets.size(); ++column) {
            if (shape.widgets.at(column) != u' ') {
                tree->setItemWidget(item, column, makeRowWidget(shape.widgets.at(column)));
            }
        }
    }
    return tree;
}

BarePage::BarePage(const BareShape& shape, QWidget* parent)
    : QWidget(parent)
{
    auto* layout = new QVBoxLayout(this);
    for (int label = 0; label < shape.labels; ++label) {
        auto* text = new QLabel(QStringLiteral("A paragraph that says what to do on this page, "
                                               "broken where the window is too narrow for it."),
                                this);
        text->setTextFormat(Qt::PlainText);
        text->setWordWrap(true);
        layout->addWidget(text);
    }
    // The first tree stands beside the grid where there is one, all others below.
    QBoxLayout* place = layout;
    if (shape.grid.cells > 0) {
        place = new QHBoxLayout;
        layout->addLayout(place, 1);
        place->addWidget(new PaintedSquares(shape.grid.side, shape.grid.cells, this));
    }
    for (const BareTree& tree : shape.trees) {
        place->addWidget(makeBareTree(tree, this), 1);
        place = layout;
    }
    auto* row = new QHBoxLayout;
    layout->addLayout(row);
    for (const char* text : {"Back", "Reset", "Next"}) {
        row->addWidget(new QPushButton(QLatin1String(text), this));
    }
}
