# In the package everybody may read everything, whatever whoever makes it allows others by habit.
execute_process(COMMAND chmod -R u=rwX,go=rX ${CPACK_TEMPORARY_DIRECTORY} COMMAND_ERROR_IS_FATAL ANY)
