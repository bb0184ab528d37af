# Fails when the core library's link interface names QtGui or QtWidgets.
if(LIBS MATCHES "Qt6::Gui|Qt6::Widgets|Qt6Gui|Qt6Widgets")
  message(FATAL_ERROR "brevik_core links a GUI library: ${LIBS}")
endif()
message(STATUS "brevik_core links: ${LIBS}")
