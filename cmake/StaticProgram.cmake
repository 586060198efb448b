# Programs whose own start is what counts: static where that can be had, and with a C library that does next to nothing
# before main. In C, or in C++ without its library.

if(NOT CMAKE_CROSSCOMPILING)
  set(MUSL_FOLDER /usr/lib/${CMAKE_SYSTEM_PROCESSOR}-linux-musl)
  find_file(MUSL_SPECS musl-gcc.specs PATHS ${MUSL_FOLDER} REQUIRED DOC "compiler settings of the package musl-tools")
endif()

# A static program that can be loaded anywhere moves itself to its place at the start, which is rcrt1.o's part: the
# specs know only the start of other programs. Debian's C library for the appliance's processor has no such part, so
# there it is a program like others.
function(make_static target)
  if(CMAKE_CROSSCOMPILING)
    return()
  endif()
  # As the specs would say it, but in words that other compilers' tools know, too.
  target_compile_options(${target} PRIVATE -nostdinc -isystem /usr/include/${CMAKE_SYSTEM_PROCESSOR}-linux-musl)
  target_link_options(${target} PRIVATE -specs=${MUSL_SPECS} -nostartfiles
                      LINKER:-static,-pie,--no-dynamic-linker,-z,text)
  target_link_libraries(${target} PRIVATE ${MUSL_FOLDER}/rcrt1.o ${MUSL_FOLDER}/crti.o ${MUSL_FOLDER}/crtn.o)
endfunction()
