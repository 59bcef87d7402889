# Every target of the project builds without a warning.
add_compile_options(-Wall -Wextra -Wpedantic -Wconversion -Wshadow -Werror)

# g++ 12 takes `"text" + std::string(...)` for copies that overlap (GCC bug 105651).
if(CMAKE_CXX_COMPILER_ID STREQUAL GNU AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
  add_compile_options(-Wno-restrict)
endif()
