# Fails when any of BINARIES (a ;-list) links QtWidgets or QtGui, or any of
# WIDGETS_ONLY (a ;-list of programs that carry the model's QImage) links
# QtWidgets.
function(check_binaries binaries forbidden)
    foreach(binary IN LISTS binaries)
        execute_process(COMMAND ldd ${binary} OUTPUT_VARIABLE libs RESULT_VARIABLE rc)
        if(NOT rc EQUAL 0)
            message(FATAL_ERROR "ldd failed on ${binary}")
        endif()
        if(libs MATCHES "libQt6(${forbidden})")
            message(FATAL_ERROR "${binary} links a forbidden library:\n${libs}")
        endif()
        message(STATUS "${binary}: none of ${forbidden}")
    endforeach()
endfunction()

check_binaries("${BINARIES}" "Widgets|Gui")
check_binaries("${WIDGETS_ONLY}" "Widgets")
