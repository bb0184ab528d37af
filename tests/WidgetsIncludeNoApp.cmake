# Fails when a file of the widget kit includes a header of app/. The link line
# cannot catch this for a header that is all inline (a layout table, say), so
# the sources are read instead.
file(GLOB sources ${DIR}/*.h ${DIR}/*.cpp)
foreach(source IN LISTS sources)
  file(STRINGS ${source} hits REGEX "^[ \t]*#[ \t]*include[ \t]*[\"<]app/")
  if(hits)
    message(FATAL_ERROR "${source} reaches into app/: ${hits}")
  endif()
endforeach()
list(LENGTH sources count)
message(STATUS "${count} widget files include nothing from app/")
