# CLI11 and nlohmann-json. They consist of headers alone, so a build for another system takes them
# from this one; by links in a folder of their own, since the folder that holds them is full of
# headers that are only true here.

if(CMAKE_CROSSCOMPILING)
  set(quillet_headers ${PROJECT_BINARY_DIR}/headers)
  file(MAKE_DIRECTORY ${quillet_headers})
  foreach(name CLI nlohmann)
    if(NOT EXISTS /usr/include/${name})
      message(FATAL_ERROR "The headers in /usr/include/${name} are missing: install Debian's "
                          "packages libcli11-dev and nlohmann-json3-dev.")
    endif()
    file(CREATE_LINK /usr/include/${name} ${quillet_headers}/${name} SYMBOLIC)
  endforeach()
  foreach(target CLI11::CLI11 nlohmann_json::nlohmann_json)
    add_library(${target} INTERFACE IMPORTED GLOBAL)
    target_include_directories(${target} INTERFACE ${quillet_headers})
  endforeach()
else()
  find_package(CLI11 REQUIRED)
  find_package(nlohmann_json REQUIRED)
endif()
