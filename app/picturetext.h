#pragma once

#include <QStringList>
#include <QWidget>

/// Three paragraphs above a picture: what the first and the last page show.
class PictureText : public QWidget
{
    Q_OBJECT

protected:
    /// `texts` holds the three paragraphs; `picture` is the path of an SVG image.
    PictureText(const QStringList& texts, const QString& picture, QWidget* parent);
};
