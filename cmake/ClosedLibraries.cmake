# The three closed libraries. "platform", "management" and "utility" carry the declarations of Tarn, Velm and
# dovan_util, each with those it stands on; "tarn", "velm" and "dovan_util" are what the module links with. They
# are the development implementations of appliance/ unless the build is given the vendor's.

set(CLOSED_INCLUDE_DIRS "" CACHE STRING "directories with the vendor's headers platform/, management/ and utility/; \
without them the declarations kept here are used")
set(CLOSED_LIBRARY_DIRS "" CACHE STRING "directories with the vendor's libTarn.so, libVelm.so and libdovan_util.so; \
without them those of appliance/ are built")

foreach(directory IN LISTS CLOSED_INCLUDE_DIRS CLOSED_LIBRARY_DIRS)
  if(NOT IS_DIRECTORY ${directory})
    message(FATAL_ERROR "CLOSED_INCLUDE_DIRS or CLOSED_LIBRARY_DIRS names '${directory}', which is no directory.")
  endif()
endforeach()
foreach(library IN ITEMS platform management utility)
  add_library(${library} INTERFACE)
  if(CLOSED_INCLUDE_DIRS)
    target_include_directories(${library} INTERFACE ${CLOSED_INCLUDE_DIRS})
  else()
    target_include_directories(${library} INTERFACE ${library}/include)
  endif()
endforeach()
target_link_libraries(management INTERFACE platform)
target_link_libraries(utility INTERFACE management)

function(use_vendor_library target name)
  find_library(library NAMES ${name} PATHS ${CLOSED_LIBRARY_DIRS} NO_DEFAULT_PATH NO_CMAKE_FIND_ROOT_PATH NO_CACHE)
  if(NOT library)
    message(FATAL_ERROR "There is no lib${name}.so in '${CLOSED_LIBRARY_DIRS}' (CLOSED_LIBRARY_DIRS).")
  endif()
  add_library(${target} SHARED IMPORTED GLOBAL)
  # By name, as the linker finds it: the path of this machine must not get into the module.
  set_target_properties(${target} PROPERTIES IMPORTED_LOCATION ${library} IMPORTED_NO_SONAME ON)
endfunction()

if(CLOSED_LIBRARY_DIRS)
  use_vendor_library(tarn Tarn)
  use_vendor_library(velm Velm)
  use_vendor_library(dovan_util dovan_util)
else()
  add_subdirectory(appliance)
endif()
