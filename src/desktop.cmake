# What needs the toolkit.
find_package(Qt6 6.4 REQUIRED COMPONENTS Core Gui Widgets)

add_library(quillet_desktop STATIC
  controls/ComboBox.cpp
  controls/Control.cpp
  controls/Controls.cpp
  controls/ImageButton.cpp
  controls/OptionInterface.cpp
  controls/ScrollBar.cpp
  controls/SectionHeader.cpp
  controls/SpinButton.cpp
  look/ShockwaveFlash.cpp
  look/Theme.cpp
  look/ThemeStyle.cpp
  look/font.cpp
  look/icons.cpp
  look/marks.cpp
  look/movies/AboutMovie.cpp
  look/movies/ButtonMovie.cpp
  look/movies/MovieButton.cpp
  look/movies/ScrollingText.cpp
  look/movies/SplashMovie.cpp
  look/movies/drawing.cpp
  look/palette.cpp
  look/scale.cpp
  look/scrollBar.cpp
  platform/Sound.cpp
  platform/qt/QtHost.cpp
  platform/qt/QtSettingsHive.cpp
  sections/AuctionOptionsPanel.cpp
  sections/GrandTotal.cpp
  sections/PanelDesign.cpp
  sections/SectionPanel.cpp
  sections/SectionPanelRows.cpp
  sections/auctionOptions.cpp
  sections/controlHelpers.cpp
  sections/ctlAuctionType.cpp
  sections/ctlNumericText.cpp
  sections/ctlOutlay.cpp
  sections/ctlPayPal.cpp
  sections/ctlPaypalBusinessTypes.cpp
  sections/ctlPostage.cpp
  sections/ctlPostageParcelInsurance.cpp
  sections/ctlRealEstateOptions.cpp
  sections/ctlSaleFees.cpp
  sections/ctlSellingCosts.cpp
  sections/ctlSellingFeatures.cpp
  sections/inputNames.cpp
  shell/ButtonColumn.cpp
  shell/DesktopApplication.cpp
  shell/KeptAuction.cpp
  shell/MissingPriceLine.cpp
  shell/PageScroller.cpp
  shell/ScheduleButton.cpp
  shell/ScheduleLine.cpp
  shell/ScrollFrame.cpp
  shell/SectionSet.cpp
  shell/SettingsPage.cpp
  shell/WhatIfOpener.cpp
  shell/WindowZoom.cpp
  shell/WizardPages.cpp
  shell/WizardSteps.cpp
  shell/ctlCalculator.cpp
  shell/ctlWizard.cpp
  shell/formPosition.cpp
  shell/frmAbout.cpp
  shell/frmMain.cpp
  shell/frmSplash.cpp
  shell/frmWhatIf.cpp
  shell/tabOrder.cpp
  shell/whatif/AlternativesModel.cpp
  shell/whatif/AlternativesTable.cpp
  shell/whatif/Answers.cpp
  shell/whatif/CurveCard.cpp
  shell/whatif/FiguresCard.cpp
  shell/whatif/GoalCard.cpp
  shell/whatif/MoneyCard.cpp
  shell/whatif/Segments.cpp
  shell/whatif/TableCard.cpp
  shell/whatif/TitledCard.cpp
  shell/whatif/Uses.cpp
  shell/whatif/WhatIfButton.cpp
  shell/whatif/copyText.cpp
  shell/whatif/curveScale.cpp
  shell/whatif/figures.cpp
  shell/whatif/moneyParts.cpp
  shell/zoomSteps.cpp
  )
set_target_properties(quillet_desktop PROPERTIES AUTOMOC ON AUTORCC ON)
target_precompile_headers(quillet_desktop PRIVATE <QApplication> <QPainter> <QWidget> <map> <string> <vector>)
target_link_libraries(quillet_desktop PUBLIC quillet_online Qt6::Core Qt6::Gui Qt6::Widgets)

include(${PROJECT_SOURCE_DIR}/cmake/Fonts.cmake)
quillet_embed_fonts(quillet_desktop)
file(GLOB quillet_icons CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/graphics/icons/*.png)
qt_add_resources(quillet_desktop quillet_icons PREFIX /
                 BASE ${PROJECT_SOURCE_DIR}/graphics FILES ${quillet_icons})
file(GLOB quillet_tunes CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/data/tunes/*.wav)
qt_add_resources(quillet_desktop quillet_tunes PREFIX /
                 BASE ${PROJECT_SOURCE_DIR}/data FILES ${quillet_tunes})

# Settings are in the registry on Windows, elsewhere in a file. Sound is the system's own on
# Windows, elsewhere a library that is built only if Qt Multimedia is there.
if(WIN32)
  target_sources(quillet_desktop PRIVATE platform/windows/EndSignals.cpp
                                         platform/windows/PlatformSound.cpp
                                         platform/windows/RegistryStore.cpp)
  target_link_libraries(quillet_desktop PUBLIC winmm)
else()
  target_sources(quillet_desktop PRIVATE platform/posix/EndSignals.cpp platform/posix/IniStore.cpp
                                         platform/qt/PlatformSound.cpp)
  find_package(Qt6 QUIET OPTIONAL_COMPONENTS Multimedia)
  if(TARGET Qt6::Multimedia)
    add_library(quillet_sound MODULE platform/qt/soundLibrary.cpp)
    target_include_directories(quillet_sound PRIVATE ${CMAKE_CURRENT_SOURCE_DIR})
    target_link_libraries(quillet_sound PRIVATE quillet_flags Qt6::Multimedia)
    set_target_properties(quillet_sound PROPERTIES
      PREFIX "" OUTPUT_NAME quillet-sound
      LIBRARY_OUTPUT_DIRECTORY ${CMAKE_RUNTIME_OUTPUT_DIRECTORY})
    add_dependencies(quillet_desktop quillet_sound)
  endif()
endif()
