# Read by CPack: which packages the programs need, by the libraries that they are linked with. Those
# of the sound library alone are recommended, since the programs do without it in silence; so is
# what opens links, and what shows icons and knows the type of a file.
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
