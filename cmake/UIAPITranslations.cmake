# uiapi_embed_catalogue(<target> <name> <catalogue>): embeds a compiled catalogue in the target, as the Qt resource
# ":/<name>/translations/<catalogue>.qm". To be called in the target's directory: a generated source is built only there.

function(uiapi_embed_catalogue target name catalogue)
  qt5_add_translation(compiled "${CMAKE_CURRENT_SOURCE_DIR}/${catalogue}")
  get_filename_component(file "${compiled}" NAME)
  set(list "${CMAKE_CURRENT_BINARY_DIR}/${name}_translations.qrc")
  file(CONFIGURE OUTPUT "${list}" CONTENT "<RCC>
  <qresource prefix=\"/@name@/translations\">
    <file>@file@</file>
  </qresource>
</RCC>
" @ONLY)
  # The compiled resource names no catalogue as its input, so it is made here rather than by AUTORCC.
  set(resource "${CMAKE_CURRENT_BINARY_DIR}/qrc_${name}_translations.cpp")
  add_custom_command(OUTPUT "${resource}"
    COMMAND Qt5::rcc --name ${name}_translations --output "${resource}" "${list}"
    DEPENDS "${list}" ${compiled}
    COMMENT "Embedding ${file}" VERBATIM)
  set_source_files_properties("${resource}" PROPERTIES SKIP_AUTOMOC ON)
  target_sources(${target} PRIVATE "${resource}")
endfunction()
