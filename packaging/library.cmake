# libtarn: what computes, for other programs. One static library of the folders that know neither
# files nor screens; docs/library.md says how it is used.
set(library_folders base project engine improve drawing estimate order)

# The headers that other programs are to include; what these include comes along.
set(library_headers
    base/RunTimeError.h
    base/Version.h
    estimate/CutList.h
    estimate/EstimateRequest.h
    estimate/ImproveEstimate.h
    estimate/LayoutDrawing.h
    estimate/MakeEstimate.h
    estimate/RollPlaces.h
    estimate/RollWidth.h
    estimate/Totals.h
    order/CheckOrder.h
    order/Comparison.h
    order/ComparisonText.h
    order/CutLines.h
    order/MakeOrder.h
    order/OrderSheet.h
    project/Coverings.h
    project/OrderEntry.h
    project/OrderRequest.h
    project/Project.h
    project/Report.h
    project/Room.h
    project/RoomEntry.h
    project/WallBase.h)

find_package(Threads REQUIRED)
set(objects)
foreach(folder IN LISTS library_folders)
  list(APPEND objects $<TARGET_OBJECTS:tarn_${folder}>)
endforeach()
add_library(tarn_library STATIC ${objects})
set_target_properties(tarn_library PROPERTIES OUTPUT_NAME tarn EXPORT_NAME tarn LINKER_LANGUAGE CXX)
target_compile_features(tarn_library INTERFACE cxx_std_20)
# As the library itself is compiled: results are the same to the last bit.
target_compile_options(tarn_library
                       INTERFACE $<$<COMPILE_LANG_AND_ID:CXX,GNU,Clang>:-ffp-contract=off>)
target_link_libraries(tarn_library INTERFACE Threads::Threads)

install(
  TARGETS tarn_library
  EXPORT tarnTargets
  ARCHIVE COMPONENT development
  INCLUDES
  DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})
set(config_folder ${CMAKE_INSTALL_LIBDIR}/cmake/tarn)
install(
  EXPORT tarnTargets
  NAMESPACE tarn::
  DESTINATION ${config_folder}
  COMPONENT development)

include(CMakePackageConfigHelpers)
# Before 1.0.0 the middle number changes with what other programs have to follow.
write_basic_package_version_file(${generated}/tarnConfigVersion.cmake
                                 COMPATIBILITY SameMinorVersion)
install(
  FILES tarnConfig.cmake ${generated}/tarnConfigVersion.cmake
  DESTINATION ${config_folder}
  COMPONENT development)

install(
  CODE "set(sources \"${PROJECT_SOURCE_DIR}/src;${PROJECT_BINARY_DIR}/src/base/generated\")
set(headers \"${library_headers}\")
set(work \"${generated}/include\")
set(destination \"\${CMAKE_INSTALL_PREFIX}/${CMAKE_INSTALL_INCLUDEDIR}\")"
  COMPONENT development)
install(SCRIPT install_headers.cmake COMPONENT development)
install(
  FILES ${PROJECT_SOURCE_DIR}/docs/library.md
  DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/libtarn-dev
  COMPONENT development)
