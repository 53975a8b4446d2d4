# Gives a program its icon, version and manifest where programs carry such things.
function(quillet_windows_program program description)
  if(WIN32)
    set(script ${PROJECT_BINARY_DIR}/generated/${program}.rc)
    configure_file(${PROJECT_SOURCE_DIR}/packaging/windows/program.rc.in ${script} @ONLY)
    target_sources(${program} PRIVATE ${script})
  endif()
endfunction()
