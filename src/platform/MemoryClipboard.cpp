#include "platform/MemoryClipboard.h"

void MemoryClipboard::setImage(const Plane& p) {
    picture = p;
    ++writes;
}
