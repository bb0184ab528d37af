#include "settings/ModRecent.h"

void ModRecent::AddRecent(const QString&) {}
void ModRecent::RemoveRecent(const QString&) {}
QString ModRecent::FileNameOf(const QString& path) { return path; }
