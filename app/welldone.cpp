#include "welldone.h"

// The first paragraph is a blank on purpose: it keeps an empty line above the advice.
WellDone::WellDone(QWidget* parent)
    : PictureText(
          {tr(" "),
           tr("To improve audio performance we recommend running autotuning and manual acoustic "
              "adjustment as needed for each room combination. Remember to safe the presets after "
              "the autotune or manual change in the respective PX-HB administrative interfaces."),
           tr("When recalling a preset all PX-HBs representing that room layout need to be "
              "recalled. If not all PX-HBs are recalled to the correct room layout, even if the "
              "PX-HB is not part of that specific layout, the system might malfunction.")},
          QStringLiteral(":/image/Well_done.svg"), parent)
{
}
