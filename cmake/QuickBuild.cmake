# A single source takes a second or two to compile, mostly for headers that the next one reads again. So sources are
# compiled in batches here, and those that use Qt or GoogleTest with precompiled headers.

# Only third-party headers, so that a change of one of ours does not recompile all of them.
set(VANTREL_STANDARD_HEADERS
    <algorithm> <array> <chrono> <cstdint> <filesystem> <functional> <map> <memory> <optional> <set> <span> <sstream>
    <stdexcept> <string> <string_view> <utility> <vector>)
set(VANTREL_QT_HEADERS
    <QAbstractTableModel> <QApplication> <QCheckBox> <QComboBox> <QDateTimeEdit> <QDialog> <QHBoxLayout> <QHeaderView> <QIcon>
    <QImage> <QKeyEvent> <QLabel> <QLineEdit> <QLocale> <QMainWindow> <QMenu> <QMimeData> <QPainter> <QPlainTextEdit>
    <QPushButton> <QScrollBar> <QSortFilterProxyModel> <QString> <QStyle> <QTimer> <QTreeView> <QVBoxLayout> <QWidget>)
set(VANTREL_TEST_HEADERS <gmock/gmock.h> <gtest/gtest.h>)

# The number of sources per batch: small, so that a changed source costs little and two processors can share a folder.
set(VANTREL_BATCH 10)

# Sources that the fuzzers override: the linker can leave these out only as separate objects.
set(VANTREL_COMPILED_ALONE
    "src/wire/(SocketPosix|SteadyClock).cpp"
    "server/login/PasswordHash.cpp")
list(JOIN VANTREL_COMPILED_ALONE | VANTREL_COMPILED_ALONE)

# Adds the targets that the given one links to, directly or indirectly.
function(vantrel_collect_used target found_variable)
    set(found ${${found_variable}})
    get_target_property(direct ${target} LINK_LIBRARIES)
    get_target_property(passed_on ${target} INTERFACE_LINK_LIBRARIES)
    foreach(name IN LISTS direct passed_on)
        if(TARGET "${name}" AND NOT name IN_LIST found)
            list(APPEND found ${name})
            get_target_property(imported ${name} IMPORTED)
            if(NOT imported)
                vantrel_collect_used(${name} found)
            endif()
        endif()
    endforeach()
    set(${found_variable} ${found} PARENT_SCOPE)
endfunction()

# Adds the targets of a folder and of those below it.
function(vantrel_collect_targets folder found_variable)
    set(found ${${found_variable}})
    get_property(targets DIRECTORY ${folder} PROPERTY BUILDSYSTEM_TARGETS)
    list(APPEND found ${targets})
    get_property(folders DIRECTORY ${folder} PROPERTY SUBDIRECTORIES)
    foreach(below IN LISTS folders)
        vantrel_collect_targets(${below} found)
    endforeach()
    set(${found_variable} ${found} PARENT_SCOPE)
endfunction()

# vantrel_precompiled(<kind> HEADERS ... USES ... OPTIONS ...): the target whose precompiled headers all others of the kind
# share. They are compiled with the options that the others have.
function(vantrel_precompiled kind)
    cmake_parse_arguments(ARG "" "" "HEADERS;USES;OPTIONS" ${ARGN})
    set(source ${PROJECT_BINARY_DIR}/precompiled/${kind}.cpp)
    file(CONFIGURE OUTPUT ${source} CONTENT "// A target needs a source.\n")
    add_library(precompiled_${kind} OBJECT EXCLUDE_FROM_ALL ${source})
    target_link_libraries(precompiled_${kind} PRIVATE vantrel_options ${ARG_USES})
    target_compile_options(precompiled_${kind} PRIVATE ${ARG_OPTIONS})
    target_precompile_headers(precompiled_${kind} PRIVATE ${VANTREL_STANDARD_HEADERS} ${ARG_HEADERS})
endfunction()

function(vantrel_precompile)
    if(TARGET GTest::gmock)
        vantrel_precompiled(tests HEADERS ${VANTREL_TEST_HEADERS} USES GTest::gmock OPTIONS ${VANTREL_TEST_OPTIONS})
    endif()
    if(TARGET Qt6::Widgets)
        vantrel_precompiled(qt HEADERS ${VANTREL_QT_HEADERS} USES Qt6::Widgets)
    endif()
    if(TARGET GTest::gmock AND TARGET Qt6::Widgets)
        vantrel_precompiled(qt_tests HEADERS ${VANTREL_QT_HEADERS} ${VANTREL_TEST_HEADERS}
                            USES Qt6::Widgets GTest::gmock OPTIONS ${VANTREL_TEST_OPTIONS})
    endif()
endfunction()

# Gives a target the precompiled headers for the libraries that it uses.
function(vantrel_reuse_precompiled target)
    set(kind "")
    if(Qt6::Gui IN_LIST ARGN OR Qt6::Widgets IN_LIST ARGN)
        list(APPEND kind qt)
    endif()
    if(GTest::gtest IN_LIST ARGN OR GTest::gmock IN_LIST ARGN)
        list(APPEND kind tests)
    endif()
    if(kind)
        list(JOIN kind _ kind)
        target_precompile_headers(${target} REUSE_FROM precompiled_${kind})
        # g++ 12 warns about the standard library's own std::string if that is precompiled.
        target_compile_options(${target} PRIVATE
            $<$<CXX_COMPILER_ID:GNU>:-Wno-array-bounds;-Wno-restrict;-Wno-stringop-overflow;-Wno-stringop-overread>)
    endif()
endfunction()

# Whether a source can share a batch: it has no options or definitions of its own.
function(vantrel_can_batch target source result)
    set(can FALSE)
    cmake_path(RELATIVE_PATH source BASE_DIRECTORY ${PROJECT_SOURCE_DIR} OUTPUT_VARIABLE name)
    if(name MATCHES "[.]cpp$" AND NOT name MATCHES "^(${VANTREL_COMPILED_ALONE})$")
        set(can TRUE)
        foreach(property GENERATED COMPILE_OPTIONS COMPILE_DEFINITIONS)
            get_source_file_property(value ${source} TARGET_DIRECTORY ${target} ${property})
            if(value)
                set(can FALSE)
            endif()
        endforeach()
    endif()
    set(${result} ${can} PARENT_SCOPE)
endfunction()

# Writes the sources that include those named, and adds them to the list. The paths in them are the same in every checkout,
# so that what one has compiled serves the others. Those of tests have a folder of their own, as clang-tidy's checks do.
function(vantrel_write_batches name sources_variable)
    set(folder ${PROJECT_BINARY_DIR}/batches)
    if(name MATCHES "_tests_")
        string(APPEND folder /tests)
    endif()
    list(LENGTH ARGN total)
    math(EXPR batches "(${total} + ${VANTREL_BATCH} - 1) / ${VANTREL_BATCH}")
    set(sources ${${sources_variable}})
    foreach(batch RANGE 1 ${batches})
        math(EXPR from "${total} * (${batch} - 1) / ${batches}")
        math(EXPR count "${total} * ${batch} / ${batches} - ${from}")
        list(SUBLIST ARGN ${from} ${count} members)
        set(source ${folder}/${name}_${batch}.cpp)
        set(text "")
        foreach(member IN LISTS members)
            cmake_path(RELATIVE_PATH member BASE_DIRECTORY ${folder})
            string(APPEND text "#include \"${member}\"\n")
        endforeach()
        file(CONFIGURE OUTPUT ${source} CONTENT "${text}" @ONLY)
        list(APPEND sources ${source})
    endforeach()
    set(${sources_variable} ${sources} PARENT_SCOPE)
endfunction()

# Lets a target compile its sources in batches, each of sources of one folder.
function(vantrel_batch target)
    get_target_property(all ${target} SOURCES)
    get_target_property(home ${target} SOURCE_DIR)
    set(folders "")
    set(sources "")
    foreach(source IN LISTS all)
        cmake_path(ABSOLUTE_PATH source BASE_DIRECTORY ${home} NORMALIZE)
        vantrel_can_batch(${target} ${source} can)
        if(can)
            cmake_path(GET source PARENT_PATH folder)
            cmake_path(RELATIVE_PATH folder BASE_DIRECTORY ${PROJECT_SOURCE_DIR})
            string(MAKE_C_IDENTIFIER ${folder} folder)
            list(APPEND folders ${folder})
            list(APPEND of_${folder} ${source})
        else()
            list(APPEND sources ${source})
        endif()
    endforeach()
    list(REMOVE_DUPLICATES folders)
    foreach(folder IN LISTS folders)
        vantrel_write_batches(${target}_${folder} sources ${of_${folder}})
    endforeach()
    set_property(TARGET ${target} PROPERTY SOURCES ${sources})
    # For g++ a source in a batch is a header, in which a class must not have members of an unnamed namespace.
    target_compile_options(${target} PRIVATE $<$<CXX_COMPILER_ID:GNU>:-Wno-subobject-linkage>)
endfunction()

# Call this after all targets have been defined.
function(vantrel_build_quickly)
    configure_file(${PROJECT_SOURCE_DIR}/tests/.clang-tidy ${PROJECT_BINARY_DIR}/batches/tests/.clang-tidy COPYONLY)
    set(targets "")
    vantrel_collect_targets(${PROJECT_SOURCE_DIR} targets)
    if(VANTREL_PRECOMPILE)
        vantrel_precompile()
    endif()
    foreach(target IN LISTS targets)
        set(used "")
        vantrel_collect_used(${target} used)
        get_target_property(type ${target} TYPE)
        if(vantrel_options IN_LIST used AND type MATCHES "^(EXECUTABLE|STATIC_LIBRARY)$")
            if(VANTREL_PRECOMPILE)
                vantrel_reuse_precompiled(${target} ${used})
            endif()
            vantrel_batch(${target})
        endif()
    endforeach()
endfunction()
