# Flags shared by every target of the project.
add_library(kestrove_common INTERFACE)
target_compile_features(kestrove_common INTERFACE cxx_std_17)
target_compile_definitions(kestrove_common INTERFACE
    QT_NO_CAST_FROM_ASCII
    QT_NO_NARROWING_CONVERSIONS_IN_CONNECT
    QT_NO_URL_CAST_FROM_STRING
    QT_DISABLE_DEPRECATED_BEFORE=0x060400)
target_compile_options(kestrove_common INTERFACE -Wall -Wextra)
set(CMAKE_CXX_EXTENSIONS OFF)

if(KESTROVE_SANITIZE)
    target_compile_options(kestrove_common INTERFACE
        -fsanitize=address,undefined -fno-omit-frame-pointer -fno-sanitize-recover=undefined)
    target_link_options(kestrove_common INTERFACE -fsanitize=address,undefined)
endif()

# kestrove_add_test(NAME SOURCES... LIBS... [LABELS...])
# One executable per test file, linked only to what it tests.
function(kestrove_add_test name)
    cmake_parse_arguments(T "" "TIMEOUT" "SOURCES;LIBS;LABELS" ${ARGN})
    add_executable(${name} ${T_SOURCES})
    target_link_libraries(${name} PRIVATE kestrove_common Qt6::Test ${T_LIBS})
    target_include_directories(${name} PRIVATE ${PROJECT_SOURCE_DIR}/tests)
    add_test(NAME ${name} COMMAND ${name})
    if(NOT T_LABELS)
        set(T_LABELS unit)
    endif()
    if(NOT T_TIMEOUT)
        set(T_TIMEOUT 120)
    endif()
    set_tests_properties(${name} PROPERTIES
        LABELS "${T_LABELS}"
        TIMEOUT ${T_TIMEOUT}
        ENVIRONMENT "QT_QPA_PLATFORM=offscreen;ASAN_OPTIONS=detect_leaks=0:abort_on_error=1;UBSAN_OPTIONS=print_stacktrace=1")
endfunction()
