# Where everything lies once it is installed. The program looks for its plugin in ../lib/tarnwick/plugins and for its help in
# ../share/tarnwick, as seen from its own folder, and for the upload client beside itself.
include(GNUInstallDirs)

set(CMAKE_INSTALL_DEFAULT_COMPONENT_NAME tarnwick)
set(resources ${PROJECT_SOURCE_DIR}/resources)

install(TARGETS tarnwick RUNTIME COMPONENT tarnwick)
if(TARGET tarnwick-ftp)
  install(TARGETS tarnwick-ftp RUNTIME COMPONENT tarnwick)
endif()
if(TARGET tarnwick_web)
  install(TARGETS tarnwick_web LIBRARY DESTINATION lib/tarnwick/plugins COMPONENT tarnwick-web)
endif()
if(TARGET help_file)
  install(FILES ${CMAKE_BINARY_DIR}/tarnwick.chm DESTINATION share/tarnwick)
endif()

set(id org.tarnwick.editor)
install(FILES ${resources}/${id}.desktop DESTINATION share/applications)
install(FILES ${resources}/${id}.metainfo.xml DESTINATION share/metainfo)
install(FILES ${resources}/package/completion RENAME tarnwick DESTINATION share/bash-completion/completions)

# The icon at all sizes that desktops ask for, drawn from the one picture.
add_executable(render_icon EXCLUDE_FROM_ALL ${PROJECT_SOURCE_DIR}/cmake/icons/RenderIcon.cpp)
target_link_libraries(render_icon PRIVATE Qt6::Svg)
set(icon ${resources}/icons/tarnwick.svg)
set(icons)
foreach(size 16 22 24 32 48 64 128 256 512)
  set(drawn ${CMAKE_BINARY_DIR}/icons/${size}.png)
  add_custom_command(OUTPUT ${drawn} DEPENDS ${icon} render_icon
    COMMAND ${CMAKE_COMMAND} -E make_directory ${CMAKE_BINARY_DIR}/icons
    COMMAND render_icon ${icon} ${size} ${drawn} VERBATIM)
  list(APPEND icons ${drawn})
  install(FILES ${drawn} RENAME tarnwick.png DESTINATION share/icons/hicolor/${size}x${size}/apps)
endforeach()
install(FILES ${icon} DESTINATION share/icons/hicolor/scalable/apps)

# Manual pages and the list of changes are kept packed, without the time of packing: two builds give the same bytes.
find_program(GZIP gzip REQUIRED)
set(packed)
function(tarnwick_install_packed file name folder component)
  set(result ${CMAKE_BINARY_DIR}/packed/${component}/${name}.gz)
  add_custom_command(OUTPUT ${result} DEPENDS ${file}
    COMMAND ${CMAKE_COMMAND} -E copy ${file} ${CMAKE_BINARY_DIR}/packed/${component}/${name}
    COMMAND ${GZIP} -9nf ${CMAKE_BINARY_DIR}/packed/${component}/${name} VERBATIM)
  install(FILES ${result} DESTINATION ${folder} COMPONENT ${component})
  set(packed ${packed} ${result} PARENT_SCOPE)
endfunction()
tarnwick_install_packed(${resources}/man/tarnwick.1 tarnwick.1 share/man/man1 tarnwick)
tarnwick_install_packed(${resources}/man/tarnwick-ftp.1 tarnwick-ftp.1 share/man/man1 tarnwick)
foreach(component tarnwick tarnwick-web)
  tarnwick_install_packed(${resources}/package/changelog changelog share/doc/${component} ${component})
  install(FILES ${resources}/package/copyright DESTINATION share/doc/${component} COMPONENT ${component})
endforeach()
add_custom_target(installed_files ALL DEPENDS ${icons} ${packed})
