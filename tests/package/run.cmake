# run(command...): runs a command and fails with its output if it fails; leaves the output in `output`.
function(run)
  execute_process(COMMAND ${ARGN} RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE output)
  if(NOT result EQUAL 0)
    list(JOIN ARGN " " command)
    message(FATAL_ERROR "${command}: ${result}\n${output}")
  endif()
  set(output "${output}" PARENT_SCOPE)
endfunction()
