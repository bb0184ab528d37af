# Fails when a file of the core includes from a folder above its own level,
# or from the shell (app/, widgets/). The levels, lowest first:
#   platform; document; canvas; editing, settings; tools, operations, fileio;
#   session; the widget kit, which serves the main window and the dialogs
#   alike and so must not lean on app/.
set(allowed_platform platform)
set(allowed_document platform document)
set(allowed_canvas ${allowed_document} canvas)
set(allowed_editing ${allowed_canvas} editing)
set(allowed_settings platform settings)
set(allowed_tools ${allowed_editing} tools)
set(allowed_operations ${allowed_editing} operations)
set(allowed_fileio ${allowed_editing} settings fileio)
set(allowed_session ${allowed_tools} operations fileio settings session)
set(allowed_widgets ${allowed_session} widgets)

set(faults "")
foreach(folder platform document canvas editing settings tools operations fileio session widgets)
  file(GLOB files ${SRC}/${folder}/*.h ${SRC}/${folder}/*.cpp)
  foreach(path ${files})
    get_filename_component(name ${path} NAME)
    set(allowed ${allowed_${folder}})
    file(STRINGS ${path} includes REGEX "^#include \"[a-z]+/")
    foreach(line ${includes})
      string(REGEX REPLACE "^#include \"([a-z]+)/.*" "\\1" target ${line})
      list(FIND allowed ${target} found)
      if(found EQUAL -1)
        string(APPEND faults "\n  ${folder}/${name}: ${line}")
      endif()
    endforeach()
  endforeach()
endforeach()

if(faults)
  message(FATAL_ERROR "includes across the levels:${faults}")
endif()
