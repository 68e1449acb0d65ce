# The one place for the compiler's flags: every target of ours links curvegrab_options.
set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)

find_program(CURVEGRAB_CCACHE ccache)
if(CURVEGRAB_CCACHE AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
    set(CMAKE_CXX_COMPILER_LAUNCHER ${CURVEGRAB_CCACHE})
endif()

# ccache does not keep what was compiled with precompiled headers; it is the faster of the two.
if(CMAKE_CXX_COMPILER_LAUNCHER MATCHES ccache)
    set(CURVEGRAB_PRECOMPILED_HEADERS OFF)
    set(CURVEGRAB_PRECOMPILED_TESTS OFF)
endif()

add_library(curvegrab_options INTERFACE)
target_include_directories(curvegrab_options INTERFACE ${PROJECT_SOURCE_DIR}/src)
target_compile_options(curvegrab_options INTERFACE
    -Wall -Wextra -Wpedantic -Wconversion -Wsign-conversion -Wshadow -Wold-style-cast
    -Wnon-virtual-dtor -Woverloaded-virtual -Wcast-align -Wformat=2 -Wunused
    # Expressions compute as they are written: a fused multiply-add would change results.
    -ffp-contract=off)
if(CURVEGRAB_WERROR)
    target_compile_options(curvegrab_options INTERFACE -Werror)
endif()
if(CURVEGRAB_SANITIZE)
    target_compile_options(curvegrab_options INTERFACE
        -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
    target_link_options(curvegrab_options INTERFACE -fsanitize=address,undefined)
endif()

# Qt's share of the flags: only the folders above conversion may link this.
add_library(curvegrab_qt_options INTERFACE)
target_link_libraries(curvegrab_qt_options INTERFACE curvegrab_options)
target_compile_definitions(curvegrab_qt_options INTERFACE
    QT_NO_KEYWORDS QT_NO_FOREACH QT_NO_CAST_TO_ASCII QT_NO_CAST_FROM_BYTEARRAY
    QT_DISABLE_DEPRECATED_BEFORE=0x060400)

# Tests are long and run for moments: optimising them costs more than it gives.
add_library(curvegrab_test_options INTERFACE)
target_compile_options(curvegrab_test_options INTERFACE -O0)
# The sanitizers watch the program, not its tests, which would take twice as long to compile.
if(CURVEGRAB_SANITIZE)
    target_compile_options(curvegrab_test_options INTERFACE -fno-sanitize=all)
endif()
# Where nothing is kept from one build to the next, they are made to be run, not stepped through.
if(CURVEGRAB_PRECOMPILED_TESTS)
    target_compile_options(curvegrab_test_options INTERFACE -g1)
endif()
