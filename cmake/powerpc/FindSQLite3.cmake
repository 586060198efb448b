# SQLite for the appliance's processor. Debian has none built for it and no source package that holds the
# library as one C file, so it is compiled here, from the copy inside an npm package whose content is
# pinned below.

set(sqlite_carrier "better-sqlite3@13.2.0")
set(sqlite_carrier_file "better-sqlite3-13.2.0.tgz")
set(sqlite_carrier_sha512 "67c43ff71fee3722b1035bf814da1dc88b51551c354de281ae68f7d89871851d1c78d70163ec0ca1bb7f06\
fecced3cf03c05e39d946d35a12c0139d465229665")

set(sqlite_directory ${CMAKE_BINARY_DIR}/sqlite)
set(sqlite_source ${sqlite_directory}/package/deps/sqlite3)

if(NOT EXISTS ${sqlite_source}/sqlite3.c)
  file(MAKE_DIRECTORY ${sqlite_directory})
  execute_process(
    COMMAND npm pack ${sqlite_carrier} --silent --cache ${sqlite_directory}/npm-cache
    WORKING_DIRECTORY ${sqlite_directory} OUTPUT_QUIET ERROR_VARIABLE messages RESULT_VARIABLE status)
  if(NOT status EQUAL 0)
    message(FATAL_ERROR "SQLite's source for this processor could not be fetched: 'npm pack ${sqlite_carrier}' "
                        "failed (${status}). ${messages}")
  endif()
  file(SHA512 ${sqlite_directory}/${sqlite_carrier_file} sha512)
  if(NOT sha512 STREQUAL sqlite_carrier_sha512)
    message(FATAL_ERROR "${sqlite_carrier_file} is not the file that was reviewed: its SHA-512 is ${sha512}.")
  endif()
  file(ARCHIVE_EXTRACT INPUT ${sqlite_directory}/${sqlite_carrier_file} DESTINATION ${sqlite_directory}
       PATTERNS package/deps/sqlite3/*)
  file(REMOVE_RECURSE ${sqlite_directory}/npm-cache)
endif()

enable_language(C)
add_library(sqlite3 STATIC ${sqlite_source}/sqlite3.c)
target_compile_definitions(sqlite3 PRIVATE SQLITE_THREADSAFE=1 SQLITE_OMIT_LOAD_EXTENSION)
# Not our warnings; and one optimisation level less halves the time that it takes.
target_compile_options(sqlite3 PRIVATE -w -O1 -fvisibility=hidden)
target_include_directories(sqlite3 SYSTEM INTERFACE ${sqlite_source})
target_link_libraries(sqlite3 INTERFACE pthread m)
add_library(SQLite::SQLite3 ALIAS sqlite3)
set(SQLite3_FOUND TRUE)
