# The Debian packages: php-network, the module for the installed interpreter, and network-appliance, what ./run starts, installed.
# Made by ./package debian.
ask_php_config(--extension-dir php_extensions)
ask_php_config(--version php_version)
ask_php_config(--phpapi php_api)
string(REGEX MATCH "^[0-9]+\\.[0-9]+" php_version "${php_version}")

set(packaging ${CMAKE_SOURCE_DIR}/tools/package/debian)
set(appliance_tree share/network-appliance)
set(appliance_programs lib/network-appliance)

# The module, and beside it the libraries that it looks for there.
install(TARGETS network tarn velm dovan_util LIBRARY DESTINATION ${php_extensions} COMPONENT php-network NAMELINK_SKIP)
install(FILES ${packaging}/network.ini DESTINATION /etc/php/${php_version}/mods-available COMPONENT php-network)
install(FILES http/src/network.stub.php DESTINATION share/php-network COMPONENT php-network)

install(TARGETS cmdwrap cmdwrapd connectionLimits keepWebServer checkSettings management_database
        RUNTIME DESTINATION ${appliance_programs} COMPONENT network-appliance)
install(DIRECTORY appliance/launcher DESTINATION ${appliance_tree}/appliance COMPONENT network-appliance
        USE_SOURCE_PERMISSIONS)
install(DIRECTORY appliance/device/scripts appliance/device/etc DESTINATION ${appliance_tree}/appliance/device
        COMPONENT network-appliance USE_SOURCE_PERMISSIONS)
install(DIRECTORY http/pages DESTINATION ${appliance_tree}/http COMPONENT network-appliance USE_SOURCE_PERMISSIONS)
install(PROGRAMS run DESTINATION ${appliance_tree} COMPONENT network-appliance)
install(FILES tools/package/installed.sh DESTINATION ${appliance_tree} COMPONENT network-appliance)
install(PROGRAMS ${packaging}/network-appliance DESTINATION bin COMPONENT network-appliance)
# The launcher takes all that was built from one folder.
foreach(library IN ITEMS network libTarn libVelm libdovan_util)
  file(RELATIVE_PATH target /usr/${appliance_programs} ${php_extensions}/${library}.so)
  install(CODE "file(CREATE_LINK ${target} \
\"\$ENV{DESTDIR}/usr/${appliance_programs}/${library}.so\" SYMBOLIC)" COMPONENT network-appliance)
endforeach()

# What Debian asks of every package. compress FILE NAME FOLDER COMPONENT
find_program(GZIP gzip REQUIRED)
function(install_compressed file name folder component)
  set(compressed ${CMAKE_BINARY_DIR}/packaging/${component}/${name}.gz)
  file(MAKE_DIRECTORY ${CMAKE_BINARY_DIR}/packaging/${component})
  execute_process(COMMAND ${GZIP} --best --no-name --stdout ${file} OUTPUT_FILE ${compressed} COMMAND_ERROR_IS_FATAL ANY)
  install(FILES ${compressed} DESTINATION ${folder} COMPONENT ${component})
endfunction()
foreach(component IN ITEMS php-network network-appliance)
  configure_file(${packaging}/changelog ${CMAKE_BINARY_DIR}/packaging/${component}.changelog @ONLY)
  install_compressed(${CMAKE_BINARY_DIR}/packaging/${component}.changelog changelog share/doc/${component} ${component})
  install(FILES ${packaging}/copyright DESTINATION share/doc/${component} COMPONENT ${component})
endforeach()
configure_file(${packaging}/network-appliance.1 ${CMAKE_BINARY_DIR}/packaging/network-appliance.1 @ONLY)
install_compressed(${CMAKE_BINARY_DIR}/packaging/network-appliance.1 network-appliance.1 share/man/man1 network-appliance)
# What is read when the build is configured: it is configured again when one of them has changed.
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS
  ${packaging}/network-appliance.1 ${CMAKE_SOURCE_DIR}/tools/packages-to-run)

# What runs in the appliance: the packages of tools/packages-to-run, but those that it is built with.
set(build_packages cmake g++ libsqlite3-dev musl-tools ninja-build php-dev)
file(STRINGS tools/packages-to-run lines REGEX "^[a-z]")
foreach(line IN LISTS lines)
  string(REGEX REPLACE " *#.*" "" package "${line}")
  if(NOT package IN_LIST build_packages)
    list(APPEND run_packages ${package})
  endif()
endforeach()
# The interpreter that the module is for, and no later one.
list(TRANSFORM run_packages REPLACE "^php-" "php${php_version}-")
list(JOIN run_packages ", " run_packages)

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGE_CONTACT "network maintainers <maintainers@network.example>")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_COMPONENTS_ALL php-network network-appliance)
set(CPACK_STRIP_FILES ON)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${CMAKE_BINARY_DIR})
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)

set(CPACK_DEBIAN_PHP-NETWORK_PACKAGE_NAME php-network)
set(CPACK_DEBIAN_PHP-NETWORK_PACKAGE_SECTION php)
set(CPACK_DEBIAN_PHP-NETWORK_PACKAGE_DEPENDS "phpapi-${php_api}, php-common")
set(CPACK_DEBIAN_PHP-NETWORK_DESCRIPTION "network settings of a storage library, for PHP
An extension module with the functions by which the management pages of a
storage-library appliance read and change its network settings, with
stand-ins for the closed libraries of the appliance. The command phpenmod
has PHP load it.")
configure_file(${packaging}/php-network.conffiles ${CMAKE_BINARY_DIR}/packaging/php-network/conffiles @ONLY)
configure_file(${packaging}/php-network.prerm ${CMAKE_BINARY_DIR}/packaging/php-network/prerm COPYONLY)
configure_file(${packaging}/php-network.postrm ${CMAKE_BINARY_DIR}/packaging/php-network/postrm COPYONLY)
set(CPACK_DEBIAN_PHP-NETWORK_PACKAGE_CONTROL_EXTRA
    ${CMAKE_BINARY_DIR}/packaging/php-network/conffiles ${CMAKE_BINARY_DIR}/packaging/php-network/prerm
    ${CMAKE_BINARY_DIR}/packaging/php-network/postrm)

set(CPACK_DEBIAN_NETWORK-APPLIANCE_PACKAGE_NAME network-appliance)
set(CPACK_DEBIAN_NETWORK-APPLIANCE_PACKAGE_SECTION net)
set(CPACK_DEBIAN_NETWORK-APPLIANCE_PACKAGE_DEPENDS "php-network (= ${PROJECT_VERSION}), ${run_packages}")
set(CPACK_DEBIAN_NETWORK-APPLIANCE_DESCRIPTION "storage-library appliance in software
Everything that the management pages of a storage-library appliance need in
order to be tried on a desk: device scripts, web server, SNMP agent and a
small network with a DHCP server, all in namespaces of their own. The
command network-appliance starts it; installing it starts nothing.")
configure_file(${packaging}/network-appliance.prerm ${CMAKE_BINARY_DIR}/packaging/network-appliance/prerm COPYONLY)
configure_file(${packaging}/network-appliance.postrm ${CMAKE_BINARY_DIR}/packaging/network-appliance/postrm COPYONLY)
set(CPACK_DEBIAN_NETWORK-APPLIANCE_PACKAGE_CONTROL_EXTRA
    ${CMAKE_BINARY_DIR}/packaging/network-appliance/prerm ${CMAKE_BINARY_DIR}/packaging/network-appliance/postrm)

include(CPack)
