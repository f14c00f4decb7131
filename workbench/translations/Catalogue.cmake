# The catalogue of the workbench's own texts, embedded as a Qt resource. Included, as the library's.
find_package(Qt5 5.15 REQUIRED COMPONENTS LinguistTools)

qt5_add_translation(_workbench_catalogues "${CMAKE_CURRENT_LIST_DIR}/workbench_zh_CN.ts")
file(WRITE "${CMAKE_CURRENT_BINARY_DIR}/workbench_translations.qrc.new" "<RCC>
  <qresource prefix=\"/workbench/translations\">
    <file>workbench_zh_CN.qm</file>
  </qresource>
</RCC>
")
file(COPY_FILE "${CMAKE_CURRENT_BINARY_DIR}/workbench_translations.qrc.new"
  "${CMAKE_CURRENT_BINARY_DIR}/workbench_translations.qrc" ONLY_IF_DIFFERENT)

set(_workbench_resource "${CMAKE_CURRENT_BINARY_DIR}/qrc_workbench_translations.cpp")
add_custom_command(OUTPUT "${_workbench_resource}"
  COMMAND Qt5::rcc --name workbench_translations --output "${_workbench_resource}"
          "${CMAKE_CURRENT_BINARY_DIR}/workbench_translations.qrc"
  DEPENDS "${CMAKE_CURRENT_BINARY_DIR}/workbench_translations.qrc" ${_workbench_catalogues}
  COMMENT "Embedding the workbench's catalogue" VERBATIM)
set_source_files_properties("${_workbench_resource}" PROPERTIES SKIP_AUTOMOC ON)
target_sources(workbench_parts PRIVATE "${_workbench_resource}")
