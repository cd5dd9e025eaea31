# quillmere_test(FOLDER SOURCES … [LINK …]) makes test_FOLDER. It links the folder that it tests
# and nothing above it.
function(quillmere_test FOLDER)
  cmake_parse_arguments(ARG "" "" "SOURCES;LINK" ${ARGN})
  quillmere_target(${FOLDER} _library)
  string(REPLACE quillmere_ test_ _target ${_library})
  add_executable(${_target} ${ARG_SOURCES})
  set_target_properties(${_target} PROPERTIES AUTOMOC ON)
  target_link_libraries(${_target} PRIVATE
    ${_library} quillmere_test_support ${ARG_LINK} quillmere_compiler)
  gtest_discover_tests(${_target} TEST_PREFIX "${FOLDER}/" DISCOVERY_MODE PRE_TEST NO_PRETTY_VALUES
    PROPERTIES TIMEOUT 120)
endfunction()

# quillmere_window_test(FOLDER) runs those tests of the window that lie in FOLDER of tests/.
function(quillmere_window_test FOLDER)
  add_test(NAME ${FOLDER}/window
    COMMAND test_window -input "${PROJECT_SOURCE_DIR}/tests/${FOLDER}")
  set_tests_properties(${FOLDER}/window PROPERTIES TIMEOUT 400
    ENVIRONMENT "QT_QPA_PLATFORM=offscreen;QT_QUICK_BACKEND=software")
endfunction()

# quillmere_soak(NAME COMMAND …) is the long form of a test, which `./test soak` runs. Tests of the
# same program tell the two forms apart by the variable.
function(quillmere_soak NAME)
  add_test(NAME soak/${NAME} ${ARGN})
  set_tests_properties(soak/${NAME} PROPERTIES
    LABELS soak TIMEOUT 7200 ENVIRONMENT QUILLMERE_SOAK=1)
endfunction()
