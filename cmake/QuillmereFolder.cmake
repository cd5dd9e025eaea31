# One folder of src/ is one static library, linked to what src/arrows.txt lets it use and to
# nothing else: an include that runs against the table does not link, and the table is the only
# place that says what may use what.

file(STRINGS "${CMAKE_CURRENT_SOURCE_DIR}/src/arrows.txt" _arrows REGEX "^[a-z]")
foreach(_line IN LISTS _arrows)
  string(REGEX MATCH "^([a-z-]+) *:(.*)$" _ "${_line}")
  set(_folder "${CMAKE_MATCH_1}")
  separate_arguments(_uses UNIX_COMMAND "${CMAKE_MATCH_2}")
  set(QUILLMERE_ARROWS_${_folder} "${_uses}")
  list(APPEND QUILLMERE_FOLDERS "${_folder}")
endforeach()

# Writes to OUT the targets that FOLDER may link: those of the table that are built already.
function(quillmere_arrows FOLDER OUT)
  set(_targets)
  foreach(_used IN LISTS QUILLMERE_ARROWS_${FOLDER})
    string(REPLACE "-" "_" _used "${_used}")
    if(TARGET quillmere_${_used})
      list(APPEND _targets quillmere_${_used})
    endif()
  endforeach()
  set(${OUT} "${_targets}" PARENT_SCOPE)
endfunction()

# quillmere_folder(FOLDER HEADERS … SOURCES … [LINK …])
#   Files are named as includes name them, from src/ on. LINK names libraries from outside (Qt,
#   QCoro), never a folder.
function(quillmere_folder FOLDER)
  cmake_parse_arguments(ARG "" "" "HEADERS;SOURCES;LINK" ${ARGN})
  list(TRANSFORM ARG_HEADERS PREPEND "${PROJECT_SOURCE_DIR}/src/")
  list(TRANSFORM ARG_SOURCES PREPEND "${PROJECT_SOURCE_DIR}/src/")
  string(REPLACE "-" "_" _name "${FOLDER}")
  set(_target quillmere_${_name})
  set(_scope PUBLIC)
  set(_compiler PRIVATE)
  if(ARG_SOURCES)
    add_library(${_target} STATIC ${ARG_SOURCES})
    set_target_properties(${_target} PROPERTIES AUTOMOC ON)
  else()
    add_library(${_target} INTERFACE)
    set(_scope INTERFACE)
    set(_compiler INTERFACE)
  endif()
  target_sources(${_target} ${_scope} FILE_SET HEADERS
    BASE_DIRS "${PROJECT_SOURCE_DIR}/src" FILES ${ARG_HEADERS})
  set_target_properties(${_target} PROPERTIES VERIFY_INTERFACE_HEADER_SETS ON)
  quillmere_arrows(${FOLDER} _uses)
  target_link_libraries(${_target} ${_scope} ${_uses} ${ARG_LINK})
  target_link_libraries(${_target} ${_compiler} quillmere_compiler)
endfunction()

# quillmere_compiled_qml(TARGET)
#   Called after qt_add_qml_module. Turns warnings off for the C++ that Qt generates from the
#   bindings: it is not ours to mend.
function(quillmere_compiled_qml TARGET)
  get_target_property(_sources ${TARGET} SOURCES)
  list(FILTER _sources INCLUDE REGEX "/qmlcache/.*\\.cpp$")
  set_source_files_properties(${_sources} PROPERTIES COMPILE_OPTIONS -w)
endfunction()
