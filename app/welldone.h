#pragma once

#include "picturetext.h"

/// The closing advice once the presets are installed: the content of the last page.
class WellDone : public PictureText
{
    Q_OBJECT

public:
    explicit WellDone(QWidget* parent);
};
