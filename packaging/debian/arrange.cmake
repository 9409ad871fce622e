# Run by CPack once everything is in place below the package's future root: what Debian has otherwise than a folder of one's
# own.
set(root ${CPACK_TEMPORARY_DIRECTORY})
set(name ${CPACK_PACKAGE_NAME})
set(tool_folder ${root}/usr/libexec/${name})

# The tool finds its data beside its real folder, so a link will do.
file(MAKE_DIRECTORY ${root}/usr/bin)
file(CREATE_LINK ../libexec/${name}/${CPACK_VORN_BIN_DIR}/coordsystem_manager ${root}/usr/bin/coordsystem_manager SYMBOLIC)

# Users add geoid models, and nothing below /usr is theirs to write. Who may write here is postinst's concern.
file(MAKE_DIRECTORY ${root}/var/lib/${name}/GeoidData)
file(CREATE_LINK /var/lib/${name}/GeoidData ${tool_folder}/${CPACK_VORN_DATA_DIR}/GeoidData SYMBOLIC)

set(doc ${root}/usr/share/doc/${name})
file(COPY ${CPACK_VORN_DEBIAN_FOLDER}/copyright ${CPACK_VORN_DEBIAN_FOLDER}/changelog DESTINATION ${doc})
execute_process(COMMAND gzip -9n ${doc}/changelog ${root}/usr/share/man/man1/coordsystem_manager.1
                COMMAND_ERROR_IS_FATAL ANY)

execute_process(COMMAND strip --strip-unneeded --remove-section=.comment --remove-section=.note
                        ${tool_folder}/${CPACK_VORN_BIN_DIR}/coordsystem_manager
                        ${tool_folder}/${CPACK_VORN_LIB_DIR}/libvorn_projection.so
                COMMAND_ERROR_IS_FATAL ANY)
