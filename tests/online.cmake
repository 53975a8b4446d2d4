# Asks the platform's client for one thing; its tests drive it.
add_executable(internet_probe online/internetProbe.cpp)
target_link_libraries(internet_probe PRIVATE quillet_online quillet_region_us)
