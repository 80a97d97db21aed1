# Plays a script that prints twice through the real widgets with --pdf, and
# checks that both printouts became PDF files with the right page counts.
file(REMOVE ${WORK}/job.pdf ${WORK}/job-2.pdf)
execute_process(COMMAND ${DRIVER} --gui --pdf ${WORK}/job.pdf ${SCRIPT}
                RESULT_VARIABLE status OUTPUT_QUIET)
if(NOT status EQUAL 0)
  message(FATAL_ERROR "the driver ended with status ${status}")
endif()
foreach(file job.pdf job-2.pdf)
  if(NOT EXISTS ${WORK}/${file})
    message(FATAL_ERROR "${file} was not written")
  endif()
  file(READ ${WORK}/${file} head LIMIT 16)
  if(NOT head MATCHES "^%PDF-")
    message(FATAL_ERROR "${file} is no PDF")
  endif()
endforeach()
# The first job has two pages.
file(STRINGS ${WORK}/job.pdf pages REGEX "/Type */Page( |$|/|>)")
list(LENGTH pages count)
if(NOT count EQUAL 2)
  message(FATAL_ERROR "job.pdf has ${count} pages, wanted 2")
endif()
