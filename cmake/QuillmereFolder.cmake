# One folder of src/ is one static library, linked to what src/arrows.txt lets it use and to
# nothing else: an include that runs against the table does not link, and the table is the only
# place that says what may use what.

file(STRINGS "${CMAKE_CURRENT_SOURCE_DIR}/src/arrows.txt" _arrows REGEX "^[a-z]")
foreach(_line IN LISTS _arrows)
  string(REGEX MATCH "^([a-z/-]+) *:(.*)$" _ "${_line}")
  set(_folder "${CMAKE_MATCH_1}")
  separate_arguments(_uses UNIX_COMMAND "${CMAKE_MATCH_2}")
  if("screens/*" IN_LIST _uses)
    set(_screens "${QUILLMERE_FOLDERS}")
    list(FILTER _screens INCLUDE REGEX "^screens/")
    list(REMOVE_ITEM _uses "screens/*")
    list(APPEND _uses ${_screens})
  endif()
  set(QUILLMERE_ARROWS_${_folder} "${_uses}")
  list(APPEND QUILLMERE_FOLDERS "${_folder}")
endforeach()

# Writes to OUT the name of FOLDER's library.
function(quillmere_target FOLDER OUT)
  string(REGEX REPLACE "[/-]" "_" _name "${FOLDER}")
  set(${OUT} quillmere_${_name} PARENT_SCOPE)
endfunction()

# Writes to OUT the URI of the QML module that FOLDER is: screens/browse is Quillmere.Browse.
function(quillmere_uri FOLDER OUT)
  get_filename_component(_name "${FOLDER}" NAME)
  string(SUBSTRING "${_name}" 0 1 _first)
  string(SUBSTRING "${_name}" 1 -1 _rest)
  string(TOUPPER "${_first}" _first)
  set(${OUT} Quillmere.${_first}${_rest} PARENT_SCOPE)
endfunction()

# Writes to OUT the targets that FOLDER may link: those of the table that are built already.
function(quillmere_arrows FOLDER OUT)
  set(_targets)
  foreach(_used IN LISTS QUILLMERE_ARROWS_${FOLDER})
    quillmere_target(${_used} _target)
    if(TARGET ${_target})
      list(APPEND _targets ${_target})
    endif()
  endforeach()
  set(${OUT} "${_targets}" PARENT_SCOPE)
endfunction()

# quillmere_folder(FOLDER [HEADERS …] [SOURCES …] [QML_FILES …] [LINK …])
#   Headers and sources are named as includes name them, from src/ on; QML files from their folder on,
#   which they make a QML module. LINK names libraries from outside (Qt, QCoro), never a folder.
function(quillmere_folder FOLDER)
  cmake_parse_arguments(ARG "" "" "HEADERS;SOURCES;QML_FILES;LINK" ${ARGN})
  list(TRANSFORM ARG_HEADERS PREPEND "${PROJECT_SOURCE_DIR}/src/")
  list(TRANSFORM ARG_SOURCES PREPEND "${PROJECT_SOURCE_DIR}/src/")
  quillmere_target(${FOLDER} _target)
  set(_scope PUBLIC)
  set(_compiler PRIVATE)
  if(ARG_SOURCES OR ARG_QML_FILES)
    add_library(${_target} STATIC ${ARG_SOURCES})
    set_target_properties(${_target} PROPERTIES AUTOMOC ON)
  else()
    add_library(${_target} INTERFACE)
    set(_scope INTERFACE)
    set(_compiler INTERFACE)
  endif()
  if(ARG_HEADERS)
    target_sources(${_target} ${_scope} FILE_SET HEADERS
      BASE_DIRS "${PROJECT_SOURCE_DIR}/src" FILES ${ARG_HEADERS})
    set_target_properties(${_target} PROPERTIES VERIFY_INTERFACE_HEADER_SETS ON)
  endif()
  quillmere_arrows(${FOLDER} _uses)
  target_link_libraries(${_target} ${_scope} ${_uses} ${ARG_LINK})
  target_link_libraries(${_target} ${_compiler} quillmere_compiler)
  if(ARG_QML_FILES)
    quillmere_qml_module(${FOLDER} ${ARG_QML_FILES})
  endif()
endfunction()

# quillmere_qml_module(FOLDER FILES …) makes a folder's library a QML module, which may import the
# modules among the folders that it may use. It has no plugin: plugins serve modules that a program
# finds while it runs, and each adds to the program and to every build of it.
function(quillmere_qml_module FOLDER)
  quillmere_target(${FOLDER} _target)
  quillmere_uri(${FOLDER} _uri)
  set(_imports QtQuick)
  foreach(_used IN LISTS QUILLMERE_ARROWS_${FOLDER})
    quillmere_target(${_used} _library)
    get_target_property(_import ${_library} QT_QML_MODULE_URI)
    if(_import)
      list(APPEND _imports ${_import})
    endif()
  endforeach()
  target_link_libraries(${_target} PUBLIC Qt6::Quick)
  qt_add_qml_module(${_target}
    URI ${_uri}
    VERSION 1.0
    RESOURCE_PREFIX /qt/qml
    DEPENDENCIES ${_imports}
    NO_PLUGIN
    QML_FILES ${ARGN})
  # Nothing calls what registers the module's types, so that a program would be linked without it.
  string(REPLACE "." "_" _register "qml_register_types_${_uri}")
  string(LENGTH "${_register}" _length)
  target_link_options(${_target} INTERFACE "LINKER:-u,_Z${_length}${_register}v")
  # The registration of types includes headers by their bare names.
  target_include_directories(${_target} PRIVATE "${CMAKE_CURRENT_SOURCE_DIR}")
  quillmere_compiled_qml(${_target})
endfunction()

# quillmere_compiled_qml(TARGET)
#   Called after qt_add_qml_module. Turns warnings off for the C++ that Qt generates from the
#   bindings: it is not ours to mend.
function(quillmere_compiled_qml TARGET)
  get_target_property(_sources ${TARGET} SOURCES)
  list(FILTER _sources INCLUDE REGEX "/qmlcache/.*\\.cpp$")
  set_source_files_properties(${_sources} PROPERTIES COMPILE_OPTIONS -w)
endfunction()
