# Floor 1: the Internet, for the programs that update themselves.
if(WIN32)
  add_library(quillet_online STATIC platform/windows/WinInetCalls.cpp
    platform/windows/WinInetInternet.cpp)
  target_link_libraries(quillet_online PUBLIC quillet_core wininet)
else()
  find_package(CURL REQUIRED)
  add_library(quillet_online STATIC
    platform/posix/CurlInternet.cpp
    platform/posix/CurlTransfer.cpp)
  target_link_libraries(quillet_online PUBLIC quillet_core CURL::libcurl)
endif()
