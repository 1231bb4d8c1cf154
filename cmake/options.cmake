# What every target of this tree is compiled with, and the two ways to add one.

add_library(rotavue_options INTERFACE)
target_compile_features(rotavue_options INTERFACE cxx_std_20)
target_include_directories(rotavue_options INTERFACE ${PROJECT_SOURCE_DIR})
target_compile_options(
    rotavue_options
    INTERFACE
        -Wall
        -Wextra
        -Wpedantic
        -Wshadow
        -Wconversion
        -Wsign-conversion
        -Wold-style-cast
        -Wnon-virtual-dtor
        -Woverloaded-virtual
        -Wformat=2
        # g++'s data flow loses its way in the standard library's own variants and regular
        # expressions; the analyser and the sanitizers look for what this warning is meant to find.
        $<$<CXX_COMPILER_ID:GNU>:-Wno-maybe-uninitialized>
        -Werror
        # A fused multiply-add rounds once where the graph's arithmetic rounds twice, and moves pixels.
        -ffp-contract=off
        # No build path in a binary.
        -ffile-prefix-map=${PROJECT_SOURCE_DIR}=.
)
if(WIN32)
    # The platform's interfaces end by their last reference and have no destructor.
    target_compile_options(rotavue_options INTERFACE -Wno-non-virtual-dtor)
endif()
if(ROTAVUE_SANITIZE)
    # A number out of the range of the integer that it becomes is no part of gcc's "undefined".
    target_compile_options(
        rotavue_options
        INTERFACE -fsanitize=address,undefined,float-cast-overflow
                  -fno-sanitize-recover=all
                  -fno-omit-frame-pointer
    )
    target_link_options(rotavue_options INTERFACE -fsanitize=address,undefined)
    # Some optimisation and line numbers alone: half the time to build and to run.
    set(CMAKE_CXX_FLAGS_DEBUG "-O1 -g1")
endif()

if(ROTAVUE_SANITIZE_THREADS)
    target_compile_options(rotavue_options INTERFACE -fsanitize=thread)
    target_link_options(rotavue_options INTERFACE -fsanitize=thread)
    set(CMAKE_CXX_FLAGS_DEBUG "-O1 -g1")
endif()

if(ROTAVUE_FUZZ)
    set(instruments -fsanitize=fuzzer-no-link,address,undefined -fno-sanitize-recover=all)
    target_compile_options(rotavue_options INTERFACE ${instruments} -fno-omit-frame-pointer)
    target_link_options(rotavue_options INTERFACE -fsanitize=address,undefined)
    set(CMAKE_CXX_FLAGS_DEBUG "-O1 -g1")
endif()

if(ROTAVUE_COVERAGE)
    target_compile_options(rotavue_options INTERFACE --coverage -fprofile-abs-path)
    target_link_options(rotavue_options INTERFACE --coverage)
endif()

# rotavue_headers(NAME LIBRARIES x ... HEADERS <a> ...): headers that are compiled once, for all targets
# that take them from there.
function(rotavue_headers name)
    cmake_parse_arguments(ARG "" "" "LIBRARIES;HEADERS" ${ARGN})
    set(source ${PROJECT_BINARY_DIR}/${name}.cpp)
    file(CONFIGURE OUTPUT ${source} CONTENT "// Only its precompiled header matters.\n")
    add_library(${name} OBJECT ${source})
    target_link_libraries(${name} PRIVATE rotavue_options ${ARG_LIBRARIES})
    target_precompile_headers(${name} PRIVATE ${ARG_HEADERS})
endfunction()

# What many sources of the window include. It takes longer to compile than most of them.
set(ROTAVUE_WIDGET_HEADERS
    <QAction>
    <QApplication>
    <QComboBox>
    <QLabel>
    <QLineEdit>
    <QMainWindow>
    <QMenu>
    <QPainter>
    <QPushButton>
    <QSettings>
    <QTimer>
    <QToolButton>
    <QVBoxLayout>
)

# rotavue_library(NAME [WIDGETS] SOURCES a.cpp ... LIBRARIES x ...): a static library of one folder.
# WIDGETS says that its sources are about the window. Under the sanitizers the headers of those are
# compiled once; elsewhere each source proves that it includes what it needs.
function(rotavue_library name)
    cmake_parse_arguments(ARG "WIDGETS" "" "SOURCES;LIBRARIES" ${ARGN})
    add_library(${name} STATIC ${ARG_SOURCES})
    target_link_libraries(${name} PUBLIC rotavue_options ${ARG_LIBRARIES})
    if(ARG_WIDGETS AND ROTAVUE_SANITIZE)
        target_precompile_headers(${name} REUSE_FROM rotavue_widget_headers)
    endif()
endfunction()

# rotavue_test(NAME [WIDGETS] SOURCES a_test.cpp ... LIBRARIES x ...): one GoogleTest program; `./test`
# runs every program that this makes. What is tested stays optimised; the tests themselves need not be,
# and with the framework's headers, and those of the window, compiled once for all they build in a third
# of the time.
function(rotavue_test name)
    cmake_parse_arguments(ARG "WIDGETS" "" "SOURCES;LIBRARIES" ${ARGN})
    add_executable(${name} ${ARG_SOURCES})
    target_link_libraries(${name} PRIVATE rotavue_options ${ARG_LIBRARIES} GTest::gtest_main)
    # Position-independent like what Qt asks for, so that one precompiled header serves all.
    target_compile_options(${name} PRIVATE -O0 -fPIC)
    if(ARG_WIDGETS)
        target_precompile_headers(${name} REUSE_FROM rotavue_widget_test_headers)
    else()
        target_precompile_headers(${name} REUSE_FROM rotavue_test_headers)
    endif()
    set_target_properties(${name} PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/tests)
    add_test(NAME ${name} COMMAND ${name})
endfunction()

# rotavue_signals(NAME a.h ...): what Qt generates for the classes with signals in these headers of the
# current folder. The generator of Qt 6.4 loses its way in the standard library's concepts, which the
# automatic way shows to it.
function(rotavue_signals name)
    qt_wrap_cpp(generated ${ARGN})
    target_sources(${name} PRIVATE ${generated})
endfunction()
