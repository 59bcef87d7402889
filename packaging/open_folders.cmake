# Run by CPack before it packs: everybody may enter the folders, whatever the umask of who makes the
# package. CMake's own defaults for folders that it makes on the way are held to that umask.
file(CHMOD_RECURSE ${CPACK_TEMPORARY_INSTALL_DIRECTORY} DIRECTORY_PERMISSIONS
  OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
