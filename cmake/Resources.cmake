# The string table and the dialog layouts are checked and turned into C++ when the program is built,
# so that a wrong table stops the build and the program needs no data file to start.

set(KAVREL_GENERATED ${PROJECT_BINARY_DIR}/generated)
configure_file(${PROJECT_SOURCE_DIR}/cmake/version.inc.in ${KAVREL_GENERATED}/version.inc @ONLY)
file(GLOB KAVREL_LAYOUTS CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/resources/layouts/*.layout)

add_custom_command(
  OUTPUT ${KAVREL_GENERATED}/string_table.inc
  COMMAND ${Python3_EXECUTABLE} ${PROJECT_SOURCE_DIR}/tools/embed_strings.py
          ${PROJECT_SOURCE_DIR}/resources/strings.txt ${PROJECT_SOURCE_DIR}/src/text/ids.h
          ${KAVREL_GENERATED}/string_table.inc
  DEPENDS ${PROJECT_SOURCE_DIR}/tools/embed_strings.py ${PROJECT_SOURCE_DIR}/resources/strings.txt
          ${PROJECT_SOURCE_DIR}/src/text/ids.h
  COMMENT "Checking and embedding the string table")
add_custom_command(
  OUTPUT ${KAVREL_GENERATED}/layouts.inc
  COMMAND ${Python3_EXECUTABLE} ${PROJECT_SOURCE_DIR}/tools/embed_layouts.py
          ${KAVREL_GENERATED}/layouts.inc ${KAVREL_LAYOUTS}
  DEPENDS ${PROJECT_SOURCE_DIR}/tools/embed_layouts.py ${KAVREL_LAYOUTS}
  COMMENT "Embedding the dialog layouts")
