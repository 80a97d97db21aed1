# Plays one golden script and compares what it printed, and its exit status,
# with what is expected. Run as:
#   cmake -DDRIVER=... -DSCRIPT=x.tsc -DEXPECTED=x.out -DSTATUS=N [-DGUI=ON]
#         [-DSTDIN=bare|dash] -P compare.cmake
# STDIN feeds the script on standard input, with no file argument (bare) or
# with "-" (dash).
set(args)
if(GUI)
  list(APPEND args --gui)
endif()
set(input)
if(STDIN)
  set(input INPUT_FILE ${SCRIPT})
  if(STDIN STREQUAL "dash")
    list(APPEND args -)
  endif()
else()
  list(APPEND args ${SCRIPT})
endif()
get_filename_component(name ${SCRIPT} NAME_WE)
execute_process(COMMAND ${DRIVER} ${args}
                ${input}
                OUTPUT_VARIABLE actual
                ERROR_VARIABLE errors
                RESULT_VARIABLE status)
file(READ ${EXPECTED} expected)
set(failed FALSE)
if(NOT "${actual}" STREQUAL "${expected}")
  set(failed TRUE)
  set(got ${CMAKE_CURRENT_BINARY_DIR}/${name}.actual)
  file(WRITE ${got} "${actual}")
  find_program(DIFF diff)
  if(DIFF)
    execute_process(COMMAND ${DIFF} -u ${EXPECTED} ${got} OUTPUT_VARIABLE difference)
    message("Output differs from ${EXPECTED} (- expected, + actual):\n${difference}")
  else()
    message("Output differs from ${EXPECTED}; actual output in ${got}")
  endif()
endif()
if(NOT "${status}" STREQUAL "${STATUS}")
  set(failed TRUE)
  message("Exit status ${status}, expected ${STATUS}")
endif()
if(errors)
  message("Standard error:\n${errors}")
endif()
# In the real window every text must fit its box as the script fills it.
if(GUI AND errors MATCHES "(^|\n)unfit ")
  set(failed TRUE)
  message("A text does not fit its box in the real window (see \"unfit\" above)")
endif()
if(failed)
  message(FATAL_ERROR "${SCRIPT} failed")
endif()
