# What every target is compiled with, in one place.
add_library(tessel_options INTERFACE)

target_compile_definitions(tessel_options INTERFACE
    QT_NO_KEYWORDS
    QT_NO_CAST_FROM_ASCII
    QT_NO_CAST_TO_ASCII
    QT_NO_CAST_FROM_BYTEARRAY
    QT_NO_URL_CAST_FROM_STRING
    QT_DISABLE_DEPRECATED_BEFORE=0x060400)

if(MSVC)
    target_compile_options(tessel_options INTERFACE /W4 /utf-8 $<$<BOOL:${TESSEL_WERROR}>:/WX>)
else()
    target_compile_options(tessel_options INTERFACE
        -Wall -Wextra -Wpedantic -Wshadow -Wconversion
        $<$<BOOL:${TESSEL_WERROR}>:-Werror>)
endif()

# What is delivered is hardened as Debian hardens its own programs. Every release build is, so that
# what was tested and measured is what is delivered.
if(UNIX AND NOT APPLE)
    target_compile_options(tessel_options INTERFACE
        "$<$<CONFIG:Release>:-fstack-protector-strong;-U_FORTIFY_SOURCE;-D_FORTIFY_SOURCE=2>")
    target_link_options(tessel_options INTERFACE "$<$<CONFIG:Release>:-Wl,-z,relro,-z,now>")
endif()

if(TESSEL_SANITIZE OR TESSEL_FUZZ)
    set(sanitizers -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
    if(TESSEL_FUZZ)
        # What is fuzzed tells which of its branches an input takes.
        list(APPEND sanitizers -fsanitize=fuzzer-no-link)
    endif()
    add_compile_options(${sanitizers})
    add_link_options(${sanitizers})
endif()
