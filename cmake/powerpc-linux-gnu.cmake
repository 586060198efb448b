# The appliance's processor: 32-bit big-endian PowerPC under Linux, with Debian's cross compiler.
# -DCMAKE_CXX_COMPILER=... names another one, -DCMAKE_SYSROOT=... the appliance's own libraries.

set(CMAKE_SYSTEM_NAME Linux)
set(CMAKE_SYSTEM_PROCESSOR powerpc)

foreach(language IN ITEMS C CXX)
  if(DEFINED CMAKE_${language}_COMPILER)
    continue()
  endif()
  set(program_C powerpc-linux-gnu-gcc)
  set(program_CXX powerpc-linux-gnu-g++)
  find_program(POWERPC_${language} ${program_${language}})
  if(NOT POWERPC_${language})
    message(FATAL_ERROR "There is no ${program_${language}} here. Install Debian's g++-powerpc-linux-gnu (it and "
                        "gcc-multilib exclude each other: the latter has to go first), or name another compiler "
                        "for 32-bit PowerPC with -DCMAKE_${language}_COMPILER=...")
  endif()
  set(CMAKE_${language}_COMPILER ${POWERPC_${language}})
endforeach()

# The closed libraries were built when std::string had its first layout and its operations their first
# names.
add_compile_definitions(_GLIBCXX_USE_CXX11_ABI=0)

# What Debian does not have for this processor is built on the way.
list(APPEND CMAKE_MODULE_PATH ${CMAKE_CURRENT_LIST_DIR}/powerpc)

set(CMAKE_FIND_ROOT_PATH /usr/powerpc-linux-gnu)
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
