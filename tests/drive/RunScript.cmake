# SPDX-License-Identifier: Zlib
# Plays one driver script and judges the answers and the exit status.
# cmake -DDRIVE=… -DCOMPARE=… -DROOT=… -DSCRIPT=… -DFOLDER=… [-DACCEPT=ON] -P RunScript.cmake
get_filename_component(name "${SCRIPT}" NAME_WE)
get_filename_component(sources "${SCRIPT}" DIRECTORY)
file(MAKE_DIRECTORY "${FOLDER}")
set(answers "${FOLDER}/${name}.answers")
execute_process(
    COMMAND "${DRIVE}" --root "${ROOT}" "${SCRIPT}"
    OUTPUT_FILE "${answers}"
    WORKING_DIRECTORY "${FOLDER}"
    RESULT_VARIABLE status)

if(ACCEPT)
    execute_process(COMMAND "${COMPARE}" --accept "${SCRIPT}" "${sources}/${name}.expected" "${answers}"
                    COMMAND_ERROR_IS_FATAL ANY)
    return()
endif()

# 0 where every command was carried out, 1 where one was refused; anything else is a crash.
file(STRINGS "${answers}" refused REGEX "\"error\": ")
if(refused)
    set(wanted 1)
else()
    set(wanted 0)
endif()
execute_process(COMMAND "${COMPARE}" "${SCRIPT}" "${sources}/${name}.expected" "${answers}" RESULT_VARIABLE different)
if(NOT status STREQUAL wanted)
    message(FATAL_ERROR "velkar-drive ended with ${status} instead of ${wanted}")
endif()
if(NOT different EQUAL 0)
    message(FATAL_ERROR "the answers differ")
endif()
