# Builds the Debian package from the build's install rules into OUT and checks
# its contents and the run-time dependencies it declares.
file(REMOVE_RECURSE ${OUT})
execute_process(COMMAND ${CPACK} -G DEB -B ${OUT} --config ${BUILD}/CPackConfig.cmake
                WORKING_DIRECTORY ${BUILD} RESULT_VARIABLE status OUTPUT_QUIET)
if(NOT status EQUAL 0)
  message(FATAL_ERROR "cpack failed: ${status}")
endif()
file(GLOB debs ${OUT}/tessaron_*.deb)
list(LENGTH debs count)
if(NOT count EQUAL 1)
  message(FATAL_ERROR "expected one package, found: ${debs}")
endif()
execute_process(COMMAND ${DPKG_DEB} -c ${debs} OUTPUT_VARIABLE files)
foreach(file ./usr/bin/tessaron ./usr/share/applications/org.tessaron.Tessaron.desktop
             ./usr/share/metainfo/org.tessaron.Tessaron.metainfo.xml
             ./usr/share/icons/hicolor/48x48/apps/org.tessaron.Tessaron.png)
  string(FIND "${files}" "${file}" at)
  if(at EQUAL -1)
    message(FATAL_ERROR "the package lacks ${file}")
  endif()
endforeach()
execute_process(COMMAND ${DPKG_DEB} -f ${debs} Depends OUTPUT_VARIABLE depends)
foreach(needed qt6-qpa-plugins fonts-dejavu-extra libqt6widgets6 libqt6svg6)
  string(FIND "${depends}" "${needed}" at)
  if(at EQUAL -1)
    message(FATAL_ERROR "the package does not depend on ${needed}: ${depends}")
  endif()
endforeach()
