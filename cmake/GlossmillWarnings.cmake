# Warnings, and sanitizers where asked for, for every target of ours.
add_library(glossmill_options INTERFACE)
target_compile_options(glossmill_options INTERFACE
  -Wall -Wextra -Wpedantic -Wconversion -Wshadow -Werror)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
  # g++ 12 takes the inlined joining of two std::string for a copy of overlapping memory.
  target_compile_options(glossmill_options INTERFACE -Wno-restrict)
endif()
if(GLOSSMILL_SANITIZE)
  target_compile_options(glossmill_options INTERFACE
    -fsanitize=${GLOSSMILL_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_link_options(glossmill_options INTERFACE -fsanitize=${GLOSSMILL_SANITIZE})
  if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    # The sanitizers' own code makes g++ warn of variables that are never read unset.
    target_compile_options(glossmill_options INTERFACE -Wno-maybe-uninitialized)
  endif()
endif()
