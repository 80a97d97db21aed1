# Installs the build into a staging folder and checks that each file a desktop
# needs is there: the program, its launcher entry, its page and every icon.
file(REMOVE_RECURSE ${STAGE})
execute_process(COMMAND ${CMAKE_COMMAND} --install ${BUILD} --prefix ${STAGE}
                RESULT_VARIABLE status OUTPUT_QUIET)
if(NOT status EQUAL 0)
  message(FATAL_ERROR "cmake --install failed: ${status}")
endif()
set(wanted
    bin/tessaron
    share/applications/org.tessaron.Tessaron.desktop
    share/metainfo/org.tessaron.Tessaron.metainfo.xml
    share/icons/hicolor/scalable/apps/org.tessaron.Tessaron.svg)
foreach(size 16 22 24 32 48 64 128 256)
  list(APPEND wanted share/icons/hicolor/${size}x${size}/apps/org.tessaron.Tessaron.png)
endforeach()
foreach(file ${wanted})
  if(NOT EXISTS ${STAGE}/${file})
    message(FATAL_ERROR "not installed: ${file}")
  endif()
endforeach()
# An icon of the wrong size would look blurred in the launcher: PNG width and
# height stand at bytes 16-23, big-endian.
foreach(size 16 256)
  file(READ ${STAGE}/share/icons/hicolor/${size}x${size}/apps/org.tessaron.Tessaron.png head
       LIMIT 24 HEX)
  string(SUBSTRING "${head}" 32 8 width)
  math(EXPR width "0x${width}")
  if(NOT width EQUAL size)
    message(FATAL_ERROR "the ${size} px icon is ${width} px wide")
  endif()
endforeach()
file(GLOB stray RELATIVE ${STAGE} ${STAGE}/bin/*)
if(NOT stray STREQUAL "bin/tessaron")
  message(FATAL_ERROR "only the program belongs in bin/, found: ${stray}")
endif()
