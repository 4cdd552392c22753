# SPDX-FileCopyrightText: 2026 The Torvi developers
# SPDX-License-Identifier: MIT

find_path(TORVI_BOOTSTRAP_ICONS cloud-fill.svg
    PATHS /usr/share/bootstrap-icons/svg /usr/local/share/bootstrap-icons/svg
    DOC "Folder with the SVG files of Bootstrap Icons" REQUIRED)

# Our name of each symbol, and the file that draws it.
set(TORVI_SYMBOLS
    arrow.clockwise arrow-clockwise
    arrow.up.forward.square arrow-up-right-square
    bolt lightning
    bolt.fill lightning-fill
    checkmark check-lg
    chevron.down chevron-down
    chevron.up chevron-up
    chevron.up.chevron.down chevron-expand
    cloud.bolt.fill cloud-lightning-fill
    cloud.fill cloud-fill
    doc.on.clipboard clipboard
    exclamationmark.triangle.fill exclamation-triangle-fill
    folder folder
    folder.fill folder-fill
    gear gear
    gearshape.fill gear-fill
    info.circle info-circle
    key key
    key.fill key-fill
    magnifyingglass search
    person.2 people
    person.fill person-fill
    power power
    slider.horizontal.3 sliders
    star star
    star.fill star-fill
    terminal.fill terminal-fill
    trash trash
    xmark x-lg
    xmark.circle.fill x-circle-fill
)
# Drawn by us, for no set has them.
set(TORVI_OWN_SYMBOLS bolt.badge.a person.badge.key progress)

# torvi_add_symbols(TARGET): puts all symbols under :/symbols, each named as we name it.
function(torvi_add_symbols target)
    set(files "")
    set(pairs ${TORVI_SYMBOLS})
    while(pairs)
        list(POP_FRONT pairs name file)
        set(path ${TORVI_BOOTSTRAP_ICONS}/${file}.svg)
        set_source_files_properties(${path} PROPERTIES QT_RESOURCE_ALIAS ${name}.svg)
        list(APPEND files ${path})
    endwhile()
    foreach(name IN LISTS TORVI_OWN_SYMBOLS)
        set(path symbols/${name}.svg)
        set_source_files_properties(${path} PROPERTIES QT_RESOURCE_ALIAS ${name}.svg)
        list(APPEND files ${path})
    endforeach()
    qt_add_resources(${target} symbols PREFIX /symbols FILES ${files})
endfunction()
