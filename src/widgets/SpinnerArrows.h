#pragma once

class QScrollBar;

// The small vertical scroll bars the dialogs use as spinners. A scroll bar
// counts up towards its lower arrow, while a spinner's upper arrow raises the
// value: this turns every arrow and page step of bar round, by step.
void raiseWithUpperArrow(QScrollBar* bar, int step);
