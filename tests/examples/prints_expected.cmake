# Runs PROGRAM, which must succeed and print what stands in the file EXPECTED. CMake reads CR LF as LF.
execute_process(COMMAND ${PROGRAM} RESULT_VARIABLE status OUTPUT_VARIABLE printed)
if(NOT status EQUAL 0)
  message(FATAL_ERROR "${PROGRAM} ended with ${status}")
endif()
file(READ ${EXPECTED} expected)
if(NOT printed STREQUAL expected)
  message(FATAL_ERROR "${PROGRAM} printed:\n${printed}\nand not:\n${expected}")
endif()
