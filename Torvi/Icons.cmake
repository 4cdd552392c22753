# SPDX-FileCopyrightText: 2026 The Torvi developers
# SPDX-License-Identifier: MIT

# Icons stand in an icon theme beside the programs (share/icons, which is also where an
# installation has them), and in the resources.
set(TORVI_ICONS ${PROJECT_BINARY_DIR}/share/icons)

# The application's own icon, in colour and symbolic.
set(own_icons ${PROJECT_SOURCE_DIR}/packaging/icons)
foreach(icon scalable/apps/com.veldra.Torvi.svg symbolic/apps/com.veldra.Torvi-symbolic.svg)
    configure_file(${own_icons}/hicolor/${icon} ${TORVI_ICONS}/hicolor/${icon} COPYONLY)
endforeach()

# The status item's symbols, as symbolic icons.
find_path(TORVI_BOOTSTRAP_ICONS cloud-fill.svg
    PATHS /usr/share/bootstrap-icons/svg /usr/local/share/bootstrap-icons/svg
    DOC "Folder with the SVG files of Bootstrap Icons" REQUIRED)

# torvi_add_status_icon(SYMBOL FILE)
function(torvi_add_status_icon symbol file)
    set(source ${TORVI_BOOTSTRAP_ICONS}/${file}.svg)
    set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${source})
    string(REPLACE "." "-" name ${symbol})
    set(target ${TORVI_ICONS}/hicolor/symbolic/apps/com.veldra.Torvi-${name}-symbolic.svg)
    # Panels recolour a solid colour; "currentColor" stays black in some.
    file(READ ${source} drawing)
    string(REPLACE "currentColor" "#2e3436" drawing "${drawing}")
    file(CONFIGURE OUTPUT ${target} CONTENT "${drawing}" @ONLY)
    set_source_files_properties(${target} PROPERTIES QT_RESOURCE_ALIAS ${symbol}.svg)
    qt_add_resources(Torvi status_${name} PREFIX /torvi/symbols FILES ${target})
endfunction()

torvi_add_status_icon(cloud.fill cloud-fill)
torvi_add_status_icon(cloud.bolt.fill cloud-lightning-fill)
