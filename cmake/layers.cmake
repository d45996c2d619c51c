include(precompiled)

# One static library per folder. Its headers are found by the targets that name it under USES and
# by nobody else (USES is private and not handed on), so an include that runs upwards, or past what
# a folder is allowed to know, does not compile.
#
#   tessel_layer(NAME SOURCES file... [USES target...] [QT module...])
function(tessel_layer name)
    cmake_parse_arguments(arg "" "" "SOURCES;USES;QT" ${ARGN})
    list(TRANSFORM arg_QT PREPEND "Qt6::")
    add_library(${name} STATIC ${arg_SOURCES})
    target_include_directories(${name} PUBLIC "${CMAKE_CURRENT_SOURCE_DIR}")
    target_link_libraries(${name} PUBLIC ${arg_QT} PRIVATE tessel_options ${arg_USES})
    tessel_precompile(${name} ${arg_QT})
endfunction()

# A program in the root of the build folder.
#
#   tessel_program(NAME SOURCES file... [USES target...] [QT module...])
function(tessel_program name)
    cmake_parse_arguments(arg "" "" "SOURCES;USES;QT" ${ARGN})
    list(TRANSFORM arg_QT PREPEND "Qt6::")
    add_executable(${name} ${arg_SOURCES})
    set_target_properties(${name} PROPERTIES RUNTIME_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}")
    target_link_libraries(${name} PRIVATE tessel_options ${arg_USES} ${arg_QT})
    tessel_precompile(${name} ${arg_QT})
endfunction()

# A Qt Test program, run by CTest on the offscreen platform with a home folder of its own.
# Its source is NAME.cpp in the calling folder; EXTRA lists further sources. With SHARES each of the
# test functions named there is a test of its own, so that they run side by side.
#
# Where one of its functions cannot be run and none fails, CTest shows the program as skipped rather
# than as passed: its exit code says so (testcase.h).
#
#   tessel_test(NAME [EXTRA file...] [USES target...] [QT module...] [TIMEOUT seconds]
#               [SHARES function...])
function(tessel_test name)
    cmake_parse_arguments(arg "" "TIMEOUT" "EXTRA;USES;QT;SHARES" ${ARGN})
    list(TRANSFORM arg_QT PREPEND "Qt6::")
    if(NOT arg_TIMEOUT)
        set(arg_TIMEOUT 180)
    endif()
    add_executable(${name} ${name}.cpp ${arg_EXTRA})
    target_link_libraries(${name} PRIVATE tessel_options tessel_testsupport ${arg_USES} ${arg_QT} Qt6::Test)
    tessel_precompile(${name} ${arg_QT})
    set(tests ${name})
    if(arg_SHARES)
        list(TRANSFORM arg_SHARES PREPEND "${name}." OUTPUT_VARIABLE tests)
        foreach(share ${arg_SHARES})
            add_test(NAME ${name}.${share} COMMAND ${name} ${share})
        endforeach()
    else()
        add_test(NAME ${name} COMMAND ${name})
    endif()
    set_tests_properties(${tests} PROPERTIES
        TIMEOUT ${arg_TIMEOUT}
        ENVIRONMENT "QT_QPA_PLATFORM=offscreen;QT_QPA_PLATFORMTHEME=;LC_ALL=C.UTF-8"
        FAIL_REGULAR_EXPRESSION "No such (slot|signal|method);QObject::connect;QObject::disconnect;runtime error:"
        SKIP_RETURN_CODE 77)
endfunction()
