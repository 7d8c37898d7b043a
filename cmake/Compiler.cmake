# What every target of the house is compiled with.

find_program(CCACHE_PROGRAM ccache)
if(CCACHE_PROGRAM AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
  set(CMAKE_CXX_COMPILER_LAUNCHER ${CCACHE_PROGRAM})
endif()

# Coordinates must agree to the last digit between compilers and machines, so a product and a sum
# are never contracted into one rounding.
if(NOT MSVC)
  add_compile_options(-ffp-contract=off)
endif()

if(TARNWICK_SANITIZE)
  add_compile_options(-fsanitize=${TARNWICK_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer)
  add_link_options(-fsanitize=${TARNWICK_SANITIZE})
endif()

add_library(project_warnings INTERFACE)
target_compile_options(project_warnings INTERFACE
  "$<IF:$<CXX_COMPILER_ID:MSVC>,/W4;/permissive-,-Wall;-Wextra;-Wpedantic;-Wshadow;-Wconversion>")
