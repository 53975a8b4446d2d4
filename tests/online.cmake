# Makes one request with the platform's Internet client; internet_test.py drives it.
add_executable(internet_probe online/internetProbe.cpp)
target_link_libraries(internet_probe PRIVATE quillet_online quillet_region_us)
