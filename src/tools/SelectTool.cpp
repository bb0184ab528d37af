#include "tools/SelectTool.h"

#include "app/Editor.h"

void SelectTool::mouseDown(int, int) {}
void SelectTool::mouseMove(int, int) {}
void SelectTool::mouseUp(int, int) {}
