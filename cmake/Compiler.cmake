# One place for everything that every target is compiled with.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_CXX_FLAGS_RELEASE "-O2 -DNDEBUG")

find_program(CCACHE_PROGRAM ccache)
if(CCACHE_PROGRAM)
    set(CMAKE_CXX_COMPILER_LAUNCHER "${CCACHE_PROGRAM}")
endif()

# Each test is a program, and to link them all takes minutes by the linker that GCC comes with.
find_program(MOLD_PROGRAM ld.mold)
if(MOLD_PROGRAM)
    add_link_options(-fuse-ld=mold)
endif()

# Colour arithmetic must give the same bits on every machine, with or without fused multiply-add.
add_compile_options(-ffp-contract=off)
add_compile_options(-Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual -Werror)
add_compile_definitions(
    QT_NO_KEYWORDS
    QT_NO_CAST_FROM_ASCII
    QT_NO_CAST_TO_ASCII
    QT_DISABLE_DEPRECATED_BEFORE=0x060400
    _GLIBCXX_ASSERTIONS)

if(DROPSHADE_SANITIZE)
    # -g1: what a report shows, and no more to write and link.
    add_compile_options(
        -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer -g1)
    add_link_options(-fsanitize=address,undefined)
endif()
if(DROPSHADE_FUZZ)
    add_compile_options(-fsanitize=fuzzer-no-link)
endif()
