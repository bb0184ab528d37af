#include "tools/ColourPickers.h"

#include "tools/ButtonColours.h"

ColourPickers::ColourPickers() : PicPal(51, 335), PicGreyPal(92, 32), PicMiniPal(96, 52) {}

void ColourPickers::mouseDown(Picker, int, int, int, ButtonColours&) {}
void ColourPickers::mouseMove(Picker, int, int, int, ButtonColours&) {}
