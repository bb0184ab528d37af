# Stages `make install` under STAGE and checks what landed there.
file(REMOVE_RECURSE ${STAGE})
execute_process(COMMAND ${CMAKE_COMMAND} -E env DESTDIR=${STAGE}
                        ${CMAKE_COMMAND} --install ${BUILD} --prefix /usr/local
                RESULT_VARIABLE failed OUTPUT_QUIET)
if(failed)
  message(FATAL_ERROR "cmake --install failed")
endif()

set(root ${STAGE}/usr/local)
set(expected
  bin/brevik-cli
  share/applications/brevik.desktop
  share/icons/hicolor/16x16/apps/brevik.png
  share/icons/hicolor/32x32/apps/brevik.png
  share/icons/hicolor/48x48/apps/brevik.png
  share/icons/hicolor/scalable/apps/brevik.svg
  share/man/man1/brevik.1
  share/man/man1/brevik-cli.1
  share/brevik/brevik.icl
  lib/brevik/brevik-cli-pictures.so
  bin/brevik)
foreach(file ${expected})
  if(NOT EXISTS ${root}/${file})
    message(FATAL_ERROR "not installed: ${file}")
  endif()
endforeach()

execute_process(COMMAND desktop-file-validate ${root}/share/applications/brevik.desktop
                RESULT_VARIABLE invalid OUTPUT_VARIABLE said ERROR_VARIABLE said)
if(invalid OR NOT said STREQUAL "")
  message(FATAL_ERROR "desktop-file-validate: ${said}")
endif()
# man renders the pages (a broken page gives warnings on stderr).
execute_process(COMMAND man --warnings -l ${root}/share/man/man1/brevik-cli.1
                RESULT_VARIABLE failed OUTPUT_QUIET ERROR_VARIABLE warned)
if(failed OR NOT warned STREQUAL "")
  message(FATAL_ERROR "man brevik-cli: ${warned}")
endif()
# The installed brevik-cli finds its picture reader module.
execute_process(COMMAND ${root}/bin/brevik-cli convert ${root}/share/icons/hicolor/32x32/apps/brevik.png
                        ${STAGE}/brevik.ico
                RESULT_VARIABLE failed ERROR_VARIABLE said)
if(failed)
  message(FATAL_ERROR "installed brevik-cli convert: ${said}")
endif()
