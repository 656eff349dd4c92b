# Runs the converter window offscreen as a person would use it (a locale, a quantity,
# a display symbol, typed text) and checks its rows; then draws it into a PNG, the
# picture the README shows (docs/converter.png is a copy of ${OUTPUT_PNG}).
set(ENV{QT_QPA_PLATFORM} offscreen)

function(expect_rows expected)
  execute_process(COMMAND "${GUI}" --print ${ARGN}
    RESULT_VARIABLE rc OUTPUT_VARIABLE out ERROR_VARIABLE err)
  if(NOT rc EQUAL 0)
    message(FATAL_ERROR "kxunits-gui ${ARGN} failed (${rc}):\n${out}\n${err}")
  endif()
  string(REPLACE "\t" " | " out "${out}")
  if(NOT out STREQUAL expected)
    message(FATAL_ERROR "kxunits-gui ${ARGN} wrote:\n${out}\nexpected:\n${expected}")
  endif()
endfunction()

expect_rows([=[5'-6-1/2"
meter (m) | 1.6891 m
millimeter (mm) | 1,689.1000 mm
kilometer (km) | 0.0017 km
inch (in) | 66.5000 in
foot (ft) | 5.5417 ft
yard (yd) | 1.8472 yd
mile (mi) | 0.0010 mi
inch (ft-in (dash)) | 5'-6.5000"
inch (ft-in (dash, fraction)) | 5'-6-1/2"
inch (in (fraction)) | 66 1/2"
SI | 1.6891 m
]=] --locale en-US --symbol 0x802016 --text [=[5' 6 1/2"]=])

expect_rows([=[293,15 Kelvin
Grad Celsius (°C) | 20,00°C
Grad Fahrenheit (°F) | 68,00°F
Kelvin (K) | 293,15 K
Grad Rankine (°R) | 527,67°R
SI | 293,15 K
]=] --locale de-DE --group 0x2A000 --precision 2 --text "68 °F")

get_filename_component(png_dir "${OUTPUT_PNG}" DIRECTORY)
file(MAKE_DIRECTORY "${png_dir}")
file(REMOVE "${OUTPUT_PNG}")
execute_process(COMMAND "${GUI}" --locale en-US --symbol 0x802016 --text "1.7 m" --screenshot "${OUTPUT_PNG}"
  RESULT_VARIABLE rc ERROR_VARIABLE err)
file(SIZE "${OUTPUT_PNG}" size)
if(NOT rc EQUAL 0 OR size LESS 10000)
  message(FATAL_ERROR "no picture of the window (${rc}, ${size} bytes): ${err}")
endif()
