# The interpreter that the module is built for: the target "engine" carries its headers. No distribution
# carries the appliance's engine any more: without a php-config, its interface is the one declared here.

if(CMAKE_CROSSCOMPILING)
  set(default_php_config "")
else()
  set(default_php_config "php-config")
endif()
set(PHP_CONFIG "${default_php_config}" CACHE STRING "php-config of the engine to build for; empty for the \
appliance's engine as it is declared under engine/")

# The cache would keep a php-config that is of no use, also for those who name none the next time: it gets back the last one
# that was of use.
function(refuse_php_config)
  if(DEFINED CACHE{LAST_GOOD_PHP_CONFIG})
    set(PHP_CONFIG "${LAST_GOOD_PHP_CONFIG}" CACHE STRING "" FORCE)
  else()
    unset(PHP_CONFIG CACHE)
  endif()
  message(FATAL_ERROR ${ARGN})
endfunction()

function(ask_php_config option variable)
  execute_process(COMMAND ${PHP_CONFIG} ${option} OUTPUT_VARIABLE answer OUTPUT_STRIP_TRAILING_WHITESPACE
                  RESULT_VARIABLE status)
  if(NOT status EQUAL 0)
    refuse_php_config("'${PHP_CONFIG} ${option}' failed (${status}). Install the engine's development "
                      "package (php-dev) or name its php-config with -DPHP_CONFIG=/path/to/php-config.")
  endif()
  set(${variable} "${answer}" PARENT_SCOPE)
endfunction()

if(PHP_CONFIG)
  ask_php_config(--includes include_options)
  string(REGEX REPLACE "(^| )-I" ";" include_directories "${include_options}")
  list(REMOVE_ITEM include_directories "")
else()
  set(include_directories ${CMAKE_CURRENT_SOURCE_DIR}/engine/20020429/include)
endif()

add_library(engine INTERFACE)
target_include_directories(engine SYSTEM INTERFACE ${include_directories})

# The module's record says "no debug build, not thread-safe"; the engine refuses a record that differs
# from itself, so say it here, where it can still be mended.
function(require_engine_without macro what remedy)
  file(WRITE ${CMAKE_BINARY_DIR}/engine_check.cc
       "#include <php.h>\n#if ${macro}\n#error refused\n#endif\nint main() { return 0; }\n")
  list(TRANSFORM include_directories PREPEND "-I" OUTPUT_VARIABLE options)
  execute_process(COMMAND ${CMAKE_CXX_COMPILER} -w -fsyntax-only ${options} ${CMAKE_BINARY_DIR}/engine_check.cc
                  RESULT_VARIABLE status ERROR_VARIABLE messages)
  if(status EQUAL 0)
    return()
  endif()
  if(messages MATCHES "error refused")
    refuse_php_config("The engine of '${PHP_CONFIG}' is ${what}, and this module is for engines that are "
                      "not: ${remedy}")
  endif()
  refuse_php_config("The headers of the engine of '${PHP_CONFIG}' do not compile:\n${messages}")
endfunction()

require_engine_without(
  "defined(ZTS)" "thread-safe" "its module record carries the thread-safe flag 0 and it keeps no per-thread \
engine context. Name the php-config of a build without thread safety.")
require_engine_without(
  "ZEND_DEBUG" "a debug build" "its module record carries the debug flag 0 and it calls the engine's \
non-debug memory functions. Name the php-config of a build without --enable-debug.")

set(LAST_GOOD_PHP_CONFIG "${PHP_CONFIG}" CACHE INTERNAL "")

# Empty for an engine that does not say its number.
function(find_engine_number variable)
  file(WRITE ${CMAKE_BINARY_DIR}/engine_number.cc "#include <php.h>\nengine number: ZEND_MODULE_API_NO\n")
  list(TRANSFORM include_directories PREPEND "-I" OUTPUT_VARIABLE options)
  execute_process(COMMAND ${CMAKE_CXX_COMPILER} -w -E ${options} ${CMAKE_BINARY_DIR}/engine_number.cc
                  OUTPUT_VARIABLE text ERROR_QUIET)
  string(REGEX MATCH "engine number: ([0-9]+)" found "${text}")
  set(${variable} "${CMAKE_MATCH_1}" PARENT_SCOPE)
endfunction()
find_engine_number(ENGINE_NUMBER)

# What differs between engines lies in one file for each, engine_NUMBER.cc, and engine_current.cc for those
# without one. This gives the one in the directory at hand that the engine of this build needs.
function(engine_source variable)
  set(file engine_${ENGINE_NUMBER}.cc)
  if(NOT EXISTS ${CMAKE_CURRENT_SOURCE_DIR}/${file})
    set(file engine_current.cc)
  endif()
  set(${variable} ${file} PARENT_SCOPE)
endfunction()

# The linter asks the build how a file is compiled. Files for an engine that this build is not for are known
# to it without being built.
function(show_other_engines_to_linter target)
  file(GLOB files RELATIVE ${CMAKE_CURRENT_SOURCE_DIR} engine_[0-9]*.cc)
  foreach(file IN LISTS files)
    string(REGEX REPLACE "engine_([0-9]+)\\.cc" "\\1" number ${file})
    if(number STREQUAL ENGINE_NUMBER)
      continue()
    endif()
    add_library(${target}_${number} OBJECT EXCLUDE_FROM_ALL ${file})
    target_include_directories(${target}_${number} SYSTEM PRIVATE ${CMAKE_SOURCE_DIR}/engine/${number}/include)
    target_include_directories(${target}_${number} PRIVATE ${CMAKE_SOURCE_DIR}/appliance/libraries)
    target_link_libraries(${target}_${number} PRIVATE ${ARGN})
  endforeach()
endfunction()
