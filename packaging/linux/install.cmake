# What `cmake --install` lays into a tree. The program finds its module and its libraries relative to itself, so the tree
# can be anywhere.
include(GNUInstallDirs)
set(linux ${CMAKE_CURRENT_LIST_DIR})
set(generated ${CMAKE_CURRENT_BINARY_DIR}/linux)

get_property(shared_libraries GLOBAL PROPERTY ORVELLE_SHARED_LIBRARIES)
set(programs orvelle orvelle-probe orvelle-snapshot)
file(RELATIVE_PATH libraries /${CMAKE_INSTALL_BINDIR} /${ORVELLE_LIBRARY_FOLDER})
set_target_properties(${programs} PROPERTIES INSTALL_RPATH "$ORIGIN/${libraries}")
set_target_properties(orvelle_views ${shared_libraries} PROPERTIES INSTALL_RPATH "$ORIGIN")
install(TARGETS ${programs})
install(TARGETS orvelle_views ${shared_libraries} LIBRARY DESTINATION ${ORVELLE_LIBRARY_FOLDER})

# What desktops and software centres read. Screenshots need an address that everyone can reach.
set(ORVELLE_HOMEPAGE "" CACHE STRING "Address of the project, below which docs/pictures can be read")
set(ORVELLE_METAINFO_LINKS "")
if(ORVELLE_HOMEPAGE)
  file(READ ${linux}/orvelle.metainfo.links.in links)
  string(CONFIGURE "${links}" ORVELLE_METAINFO_LINKS @ONLY)
endif()
file(STRINGS ${CMAKE_SOURCE_DIR}/CHANGELOG.md release REGEX "^## ${PROJECT_VERSION} \\(")
string(REGEX REPLACE ".*\\((.*)\\)" "\\1" ORVELLE_RELEASE_DATE "${release}")
if(NOT ORVELLE_RELEASE_DATE)
  message(FATAL_ERROR "CHANGELOG.md has no section for version ${PROJECT_VERSION}")
endif()
configure_file(${linux}/orvelle.metainfo.xml.in ${generated}/orvelle.metainfo.xml @ONLY)
install(FILES ${linux}/orvelle.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
install(FILES ${generated}/orvelle.metainfo.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo)
install(FILES ${linux}/orvelle.service DESTINATION lib/systemd/user)

# The icon as a drawing, as a drawing in one colour, and in the sizes that themes list.
set(icons ${CMAKE_INSTALL_DATADIR}/icons/hicolor)
set(painted_icons "")
set(sizes "")
foreach(size IN ITEMS 16 22 24 32 48 64 128 256 512)
  set(file ${generated}/icons/${size}x${size}/apps/orvelle.png)
  list(APPEND painted_icons ${file})
  list(APPEND sizes ${size} ${file})
endforeach()
add_custom_command(OUTPUT ${painted_icons}
  COMMAND ${CMAKE_COMMAND} -E env QT_QPA_PLATFORM=offscreen $<TARGET_FILE:orvelle_icon_sizes> ${ORVELLE_ICON_DRAWING} ${sizes}
  DEPENDS orvelle_icon_sizes ${ORVELLE_ICON_DRAWING}
  VERBATIM)
add_custom_target(orvelle_icons ALL DEPENDS ${painted_icons})
install(DIRECTORY ${generated}/icons/ DESTINATION ${icons})
install(FILES ${ORVELLE_ICON_DRAWING} DESTINATION ${icons}/scalable/apps)
install(FILES ${CMAKE_CURRENT_SOURCE_DIR}/orvelle-symbolic.svg DESTINATION ${icons}/symbolic/apps)

# What a shell and `man` know of the commands.
foreach(program IN LISTS programs)
  set(page ${generated}/man/${program}.1)
  configure_file(${linux}/man/${program}.1.in ${page} @ONLY)
  add_custom_command(OUTPUT ${page}.gz COMMAND gzip -9nk --force ${page} DEPENDS ${page} VERBATIM)
  list(APPEND pages ${page}.gz)
endforeach()
add_custom_target(orvelle_man_pages ALL DEPENDS ${pages})
install(FILES ${pages} DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
foreach(program IN ITEMS orvelle orvelle-probe)
  install(FILES ${linux}/completions/${program}.bash RENAME ${program}
    DESTINATION ${CMAKE_INSTALL_DATADIR}/bash-completion/completions)
  install(FILES ${linux}/completions/${program}.fish DESTINATION ${CMAKE_INSTALL_DATADIR}/fish/vendor_completions.d)
  install(FILES ${linux}/completions/_${program} DESTINATION ${CMAKE_INSTALL_DATADIR}/zsh/vendor-completions)
endforeach()
