# One folder is one target. A target names every source and header that it owns, and the targets that it may use.

# vantrel_library(<folder name> SOURCES ... HEADERS ... USES <targets whose headers ours include> PRIVATE_USES ...)
# HEADERS are verified to compile alone (target all_verify_interface_header_sets). Those with a source of their own are
# not: the source includes its header first, so that the header compiles alone if the source does.
function(vantrel_library name)
    cmake_parse_arguments(ARG "" "BASE_DIR" "SOURCES;HEADERS;USES;PRIVATE_USES" ${ARGN})
    if(NOT ARG_BASE_DIR)
        set(ARG_BASE_DIR ${PROJECT_SOURCE_DIR}/src)
    endif()
    add_library(${name} STATIC ${ARG_SOURCES})
    add_library(vantrel::${name} ALIAS ${name})
    set_target_properties(${name} PROPERTIES LINKER_LANGUAGE CXX)
    set(own "")
    set(others "")
    foreach(header IN LISTS ARG_HEADERS)
        string(REGEX REPLACE "[.]h$" ".cpp" source ${header})
        if(source IN_LIST ARG_SOURCES)
            list(APPEND own ${header})
        else()
            list(APPEND others ${header})
        endif()
    endforeach()
    target_sources(${name} PUBLIC
        FILE_SET HEADERS BASE_DIRS ${ARG_BASE_DIR} FILES ${others}
        FILE_SET of_sources TYPE HEADERS BASE_DIRS ${ARG_BASE_DIR} FILES ${own})
    set_property(TARGET ${name} PROPERTY INTERFACE_HEADER_SETS_TO_VERIFY HEADERS)
    target_link_libraries(${name} PUBLIC ${ARG_USES} PRIVATE vantrel_options ${ARG_PRIVATE_USES})
    target_compile_features(${name} PUBLIC cxx_std_20) # also where a header is verified alone
endfunction()

# All programs that users run.
add_custom_target(programs)

# vantrel_program(<name> SOURCES ... USES ...): a program in build/bin.
function(vantrel_program name)
    cmake_parse_arguments(ARG "" "" "SOURCES;USES" ${ARGN})
    add_executable(${name} ${ARG_SOURCES})
    target_link_libraries(${name} PRIVATE vantrel_options ${ARG_USES})
    set_target_properties(${name} PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${VANTREL_BIN_DIR})
    add_dependencies(programs ${name})
endfunction()

# vantrel_test(<folder name> SOURCES ... USES ...): the program <folder>_tests, each of its tests known to ctest, with the
# folder for a label.
function(vantrel_test folder)
    cmake_parse_arguments(ARG "" "" "SOURCES;USES" ${ARGN})
    add_executable(${folder}_tests ${ARG_SOURCES})
    target_include_directories(${folder}_tests PRIVATE ${PROJECT_SOURCE_DIR})
    target_link_libraries(${folder}_tests PRIVATE vantrel_options ${ARG_USES} GTest::gmock GTest::gtest_main)
    gtest_discover_tests(${folder}_tests TEST_PREFIX "${folder}: " DISCOVERY_MODE PRE_TEST
                         PROPERTIES TIMEOUT 120 LABELS ${folder})
endfunction()
