#pragma once

#include "editing/EditingDialogs.h"
#include "fileio/FileDialogs.h"
#include "operations/OperationDialogs.h"
#include "platform/UserDialogs.h"

// Every question the editor can ask, generic and of its subsystems: what
// the program answers with Qt dialogs and a test with a scripted double.
class EditorDialogs : public UserDialogs,
                      public FileDialogs,
                      public EditingDialogs,
                      public OperationDialogs {};
