# The catalogues of the library's fixed texts, embedded as a Qt resource. Included, not a directory of its own:
# a generated source can only be built where its target stands.
find_package(Qt5 5.15 REQUIRED COMPONENTS LinguistTools)

qt5_add_translation(_uiapi_catalogues "${CMAKE_CURRENT_LIST_DIR}/uiapicommon_zh_CN.ts")
file(WRITE "${CMAKE_CURRENT_BINARY_DIR}/uiapicommon_translations.qrc.new" "<RCC>
  <qresource prefix=\"/uiapicommon/translations\">
    <file>uiapicommon_zh_CN.qm</file>
  </qresource>
</RCC>
")
file(COPY_FILE "${CMAKE_CURRENT_BINARY_DIR}/uiapicommon_translations.qrc.new"
  "${CMAKE_CURRENT_BINARY_DIR}/uiapicommon_translations.qrc" ONLY_IF_DIFFERENT)

# The compiled resource names no catalogue as its input, so it is made here rather than by AUTORCC.
set(_uiapi_resource "${CMAKE_CURRENT_BINARY_DIR}/qrc_uiapicommon_translations.cpp")
add_custom_command(OUTPUT "${_uiapi_resource}"
  COMMAND Qt5::rcc --name uiapicommon_translations --output "${_uiapi_resource}"
          "${CMAKE_CURRENT_BINARY_DIR}/uiapicommon_translations.qrc"
  DEPENDS "${CMAKE_CURRENT_BINARY_DIR}/uiapicommon_translations.qrc" ${_uiapi_catalogues}
  COMMENT "Embedding the catalogues" VERBATIM)
set_source_files_properties("${_uiapi_resource}" PROPERTIES SKIP_AUTOMOC ON)
target_sources(UIAPICommon_objects PRIVATE "${_uiapi_resource}")
