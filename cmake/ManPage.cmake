# Installs a manual page compressed, as Debian packages carry them and man reads
# them: gzip -n keeps the name and time out, so the same page gives the same bytes.
function(tessarondel_install_man_page page section)
  get_filename_component(name ${page} NAME)
  set(compressed ${CMAKE_CURRENT_BINARY_DIR}/${name}.gz)
  add_custom_command(OUTPUT ${compressed}
    COMMAND gzip -9 -n -c ${CMAKE_CURRENT_SOURCE_DIR}/${page} > ${compressed}
    DEPENDS ${page} VERBATIM)
  add_custom_target(man_page_${name} ALL DEPENDS ${compressed})
  install(FILES ${compressed} DESTINATION ${CMAKE_INSTALL_MANDIR}/man${section})
endfunction()
