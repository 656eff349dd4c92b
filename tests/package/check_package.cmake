# Installs the build into a fresh prefix, then configures, builds and runs a small
# consumer project that finds the package with find_package(KxCoreUnitsUI CONFIG).
set(prefix "${WORK_DIR}/prefix")
set(consumer_build "${WORK_DIR}/consumer-build")
file(REMOVE_RECURSE "${prefix}" "${consumer_build}")

function(run)
  execute_process(COMMAND ${ARGN} RESULT_VARIABLE rc OUTPUT_VARIABLE out ERROR_VARIABLE err)
  if(NOT rc EQUAL 0)
    message(FATAL_ERROR "failed (${rc}): ${ARGN}\n${out}\n${err}")
  endif()
  set(last_output "${out}" PARENT_SCOPE)
endfunction()

run("${CMAKE_COMMAND}" --install "${BUILD_DIR}" --prefix "${prefix}")
run("${CMAKE_COMMAND}" -S "${CONSUMER_DIR}" -B "${consumer_build}"
    "-DCMAKE_PREFIX_PATH=${prefix}" -DCMAKE_BUILD_TYPE=Release)
run("${CMAKE_COMMAND}" --build "${consumer_build}")
run("${consumer_build}/consumer")
message(STATUS "${last_output}")
run("${consumer_build}/widgets_consumer")
message(STATUS "${last_output}")
