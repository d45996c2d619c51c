#pragma once

#include <QObject>
#include <QString>

class QAbstractItemView;

/// Says why a list is empty: one quiet text in the middle of it, wrapped at words, there for as
/// long as the list has no rows. Screen readers find it as the description of the list.
class EmptyListText : public QObject
{
    Q_OBJECT

public:
    /// Belongs to `list`, which has its model already and keeps it.
    EmptyListText(QAbstractItemView* list, const QString& text);

    void setText(const QString& text);

    bool eventFilter(QObject* watched, QEvent* event) override;

private Q_SLOTS:
    void describeList();

private:
    bool isWanted() const;
    void paint() const;

    QAbstractItemView* m_list;
    QString m_text;
};
