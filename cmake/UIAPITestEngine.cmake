# The component TestEngine: the target UIAPICommon::TestEngine and the function that puts it in the engine's place.

if(NOT TARGET UIAPICommon::TestEngine)
  include("${CMAKE_CURRENT_LIST_DIR}/UIAPITestEngineTargets.cmake")
  # Linked without the function, it would be one of two engines. This name is in the message that ends such a run.
  set_property(TARGET UIAPICommon::TestEngine APPEND PROPERTY INTERFACE_LINK_LIBRARIES
    "$<$<NOT:$<BOOL:$<TARGET_PROPERTY:UIAPI_TEST_ENGINE>>>:UIAPICommon::call_uiapi_use_test_engine_instead>")
endif()

# uiapi_use_test_engine(<program>): links the recording engine to a test program, in place of the host's engine. Call it
# in the folder that adds the program and before functions that run it once it is built (gtest_discover_tests).
function(uiapi_use_test_engine program)
  target_link_libraries(${program} PRIVATE UIAPICommon::TestEngine)
  set_property(TARGET ${program} PROPERTY UIAPI_TEST_ENGINE ON) # UIAPICommon's users then do not link the host's
  if(WIN32)
    # Windows looks for a DLL beside the program first; no other program may find this one.
    set_target_properties(${program} PROPERTIES
      RUNTIME_OUTPUT_DIRECTORY "${CMAKE_CURRENT_BINARY_DIR}/${program}.folder")
    add_custom_command(TARGET ${program} POST_BUILD COMMAND "${CMAKE_COMMAND}" -E copy_if_different
      "$<TARGET_FILE:UIAPICommon::TestEngine>" "$<TARGET_FILE_DIR:${program}>")
  endif()
endfunction()
