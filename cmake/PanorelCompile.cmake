# SPDX-License-Identifier: MIT

# A library that leaves nothing undefined finds its mistakes when it is linked. With clang the
# sanitizers' functions are in the program only, so an instrumented library cannot be like that.
set(PANOREL_NO_UNDEFINED "LINKER:--no-undefined")
if(CMAKE_CXX_COMPILER_ID STREQUAL "Clang"
    AND (PANOREL_BUILD_FUZZERS OR CMAKE_CXX_FLAGS MATCHES "-fsanitize"))
    set(PANOREL_NO_UNDEFINED "")
endif()

# The compiler settings of every target of this project. They are private: a project that links
# Panorel keeps its own.
function(panorel_compile_settings target)
    target_compile_features(${target} PRIVATE cxx_std_17)
    set_target_properties(${target} PROPERTIES
        AUTOMOC ON
        CXX_EXTENSIONS OFF
        CXX_VISIBILITY_PRESET hidden
        VISIBILITY_INLINES_HIDDEN ON)
    target_compile_definitions(${target} PRIVATE
        QT_NO_KEYWORDS
        QT_NO_CAST_FROM_ASCII
        QT_NO_CAST_TO_ASCII
        QT_NO_URL_CAST_FROM_STRING
        QT_NO_CAST_FROM_BYTEARRAY
        QT_USE_QSTRINGBUILDER
        QT_DISABLE_DEPRECATED_BEFORE=0x050F00)
    if(MSVC)
        target_compile_options(${target} PRIVATE /W4)
    else()
        target_compile_options(${target} PRIVATE -Wall -Wextra -Wpedantic -Wshadow -Wconversion
            -Wnon-virtual-dtor -Woverloaded-virtual -Wold-style-cast)
    endif()
    if(PANOREL_WARNINGS_AS_ERRORS)
        target_compile_options(${target} PRIVATE $<IF:$<BOOL:${MSVC}>,/WX,-Werror>)
    endif()
    if(CMAKE_CXX_COMPILER_ID STREQUAL "Clang")
        # Qt's own macros are called so, QSKIP() for one.
        target_compile_options(${target} PRIVATE -Wno-gnu-zero-variadic-macro-arguments)
    endif()
    if(PANOREL_BUILD_FUZZERS)
        # Everything is instrumented, because a fuzzer follows the branches that its inputs take.
        set(sanitizers -fsanitize=fuzzer-no-link,address,undefined)
        target_compile_options(${target} PRIVATE ${sanitizers} -fno-sanitize-recover=all
            -fno-omit-frame-pointer)
        target_link_options(${target} PRIVATE ${sanitizers})
    endif()
endfunction()

# clang-tidy takes its settings from the folder of the file it reads. Nobody can fix what moc writes
# into the build folder, so a single check, which cannot fire in Qt code, is all that runs there.
if(CMAKE_CXX_CLANG_TIDY)
    file(WRITE "${PROJECT_BINARY_DIR}/.clang-tidy" "Checks: '-*,llvm-twine-local'\n")
endif()
