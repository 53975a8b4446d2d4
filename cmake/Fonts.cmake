# The program's font: made from the installed Inter (Debian's fonts-inter) by tabular-figures.py,
# which needs a Python with fontTools (Debian's python3-fonttools), and embedded as :/fonts/*.otf.

function(quillet_has_fonttools result python)
  execute_process(COMMAND ${python} -c "import fontTools.subset"
                  RESULT_VARIABLE failed OUTPUT_QUIET ERROR_QUIET)
  if(failed)
    set(${result} FALSE PARENT_SCOPE)
  endif()
endfunction()

find_program(QUILLET_FONT_PYTHON NAMES python3 python HINTS /usr/bin
             VALIDATOR quillet_has_fonttools
             DOC "Python with fontTools, to make the program's font")
if(NOT QUILLET_FONT_PYTHON)
  message(FATAL_ERROR "No Python with fontTools: install Debian's package python3-fonttools, "
                      "or set QUILLET_FONT_PYTHON.")
endif()

find_path(QUILLET_INTER_FOLDER Inter-Regular.otf
          PATHS /usr/share/fonts/opentype/inter /usr/local/share/fonts
          NO_CMAKE_FIND_ROOT_PATH  # the font of this machine, whatever is built for
          DOC "Folder of the font Inter, as Inter-Regular.otf and so on")
if(NOT QUILLET_INTER_FOLDER)
  message(FATAL_ERROR "The font Inter isn't installed: install Debian's package fonts-inter, "
                      "or set QUILLET_INTER_FOLDER to the folder that holds Inter-Regular.otf.")
endif()

# Embeds the four weights that the theme loads.
function(quillet_embed_fonts target)
  set(script ${PROJECT_SOURCE_DIR}/cmake/tabular-figures.py)
  set(fonts)
  foreach(weight Regular Medium SemiBold Bold)
    set(source ${QUILLET_INTER_FOLDER}/Inter-${weight}.otf)
    set(font ${PROJECT_BINARY_DIR}/generated/fonts/Inter-${weight}.otf)
    add_custom_command(
      OUTPUT ${font} DEPENDS ${source} ${script}
      COMMAND ${CMAKE_COMMAND} -E make_directory ${PROJECT_BINARY_DIR}/generated/fonts
      COMMAND ${QUILLET_FONT_PYTHON} ${script} "Inter Quillet" ${source} ${font}
      COMMENT "Making Inter-${weight}.otf with tabular figures" VERBATIM)
    list(APPEND fonts ${font})
  endforeach()
  qt_add_resources(${target} quillet_fonts PREFIX /fonts
                   BASE ${PROJECT_BINARY_DIR}/generated/fonts FILES ${fonts})
endfunction()
