# Read by CPack when it makes a package: each has a summary of its own in its description's first
# line, and not the project's before it.
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "")
