#include "widgets/SpinnerArrows.h"

#include <QScrollBar>

void raiseWithUpperArrow(QScrollBar* bar, int step) {
    QObject::connect(bar, &QAbstractSlider::actionTriggered, bar, [bar, step](int action) {
        if (action == QAbstractSlider::SliderSingleStepAdd ||
            action == QAbstractSlider::SliderPageStepAdd)
            bar->setSliderPosition(bar->value() - step);
        else if (action == QAbstractSlider::SliderSingleStepSub ||
                 action == QAbstractSlider::SliderPageStepSub)
            bar->setSliderPosition(bar->value() + step);
    });
}
