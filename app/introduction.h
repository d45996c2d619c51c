#pragma once

#include "picturetext.h"

/// What the wizard is for: the content of the first page.
class Introduction : public PictureText
{
    Q_OBJECT

public:
    explicit Introduction(QWidget* parent);
};
