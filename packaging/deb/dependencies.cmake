# Read by CPack: the packages that the programs need, going by the libraries they link. Packages for
# the sound library alone are only recommended, since the programs run without sound; so are those
# for opening links, for icons and for file types.
set(alongside hicolor-icon-theme shared-mime-info xdg-utils)

set(folder ${CMAKE_CURRENT_BINARY_DIR}/_dependencies)
file(MAKE_DIRECTORY ${folder}/debian)
file(WRITE ${folder}/debian/control "")  # dpkg-shlibdeps insists on one
set(files -dDepends)
foreach(program ${CPACK_QUILLET_PROGRAMS})
  list(APPEND files -e${CPACK_QUILLET_BIN}/${program})
endforeach()
set(sound ${CPACK_QUILLET_BIN}/quillet-sound.so)
if(EXISTS ${sound})
  list(APPEND files -dRecommends -e${sound})
endif()
execute_process(COMMAND dpkg-shlibdeps -O ${files} WORKING_DIRECTORY ${folder}
                OUTPUT_VARIABLE found COMMAND_ERROR_IS_FATAL ANY)

if(found MATCHES "shlibs:Depends=([^\n]+)")
  set(CPACK_DEBIAN_PACKAGE_DEPENDS ${CMAKE_MATCH_1})
endif()
list(JOIN alongside ", " CPACK_DEBIAN_PACKAGE_RECOMMENDS)
if(found MATCHES "shlibs:Recommends=([^\n]+)")
  string(APPEND CPACK_DEBIAN_PACKAGE_RECOMMENDS ", ${CMAKE_MATCH_1}")
endif()
