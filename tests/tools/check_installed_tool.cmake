# Installs the build into a fresh prefix and runs the installed kxunits from there,
# where the translations sit in share/KxCoreUnitsUI/translations/<locale>/.
set(prefix "${WORK_DIR}/prefix")
file(REMOVE_RECURSE "${prefix}")

function(expect_output pattern)
  execute_process(COMMAND ${ARGN} RESULT_VARIABLE rc OUTPUT_VARIABLE out ERROR_VARIABLE err)
  if(NOT rc EQUAL 0 OR NOT out MATCHES "${pattern}")
    message(FATAL_ERROR "${ARGN}\nexit ${rc}, expected output matching: ${pattern}\nstdout:\n${out}\nstderr:\n${err}")
  endif()
endfunction()

execute_process(COMMAND "${CMAKE_COMMAND}" --install "${BUILD_DIR}" --prefix "${prefix}"
  RESULT_VARIABLE rc OUTPUT_QUIET)
if(NOT rc EQUAL 0)
  message(FATAL_ERROR "install failed (${rc})")
endif()

set(tool "${prefix}/bin/kxunits")
expect_output("de-DE  0x0407 [^\n]*${prefix}/share/KxCoreUnitsUI/translations/de-DE" "${tool}" locales)
expect_output("fr-FR  0x040c" "${tool}" locales)
expect_output("\"Länge\"" "${tool}" units Length --locale de-DE)
expect_output("\"Longueur\"" "${tool}" units Length --locale fr-FR)

# The converter window is installed beside it and finds the same translations.
set(ENV{QT_QPA_PLATFORM} offscreen)
expect_output("Zoll \\(Fuß-Zoll \\(Strich, Bruch\\)\\)\t5'-6-1/2\"" "${prefix}/bin/kxunits-gui" --print
  --locale de-DE --text "66,5 in")
