# Asks the platform's client for one thing; its tests drive it.
add_executable(internet_probe online/internetProbe.cpp)
target_link_libraries(internet_probe PRIVATE quillet_online quillet_region_us)

if(WIN32)
  return()  # the real servers run elsewhere
endif()

# The update against real servers, which only root can start.
add_executable(online_tests
  support/UpdateServers.cpp
  support/main.cpp
  online/update_test.cpp)
target_include_directories(online_tests PRIVATE ${CMAKE_CURRENT_SOURCE_DIR})
target_compile_definitions(online_tests PRIVATE QUILLET_SOURCE_DIR="${PROJECT_SOURCE_DIR}")
target_link_libraries(online_tests PRIVATE quillet_online quillet_region_us GTest::gtest
                                           GTest::gmock)
add_test(NAME online_tests COMMAND online_tests)

add_executable(update_servers
  support/UpdateServers.cpp
  support/updateServersMain.cpp)
target_include_directories(update_servers PRIVATE ${CMAKE_CURRENT_SOURCE_DIR})
target_compile_definitions(update_servers PRIVATE QUILLET_SOURCE_DIR="${PROJECT_SOURCE_DIR}")
target_link_libraries(update_servers PRIVATE GTest::gtest quillet_core quillet_region_us)
