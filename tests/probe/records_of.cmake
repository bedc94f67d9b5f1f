# kx_records_of(HEADERS): for the record headers in HEADERS ("|"-separated
# paths of <subsystem>/records.h), sets kx_record_includes to an #include line
# per header and kx_records to <subsystem>/<Name> for every KX_RECORD in them.
# Used by the generators of tests/probe/lookup_room.cmake and
# tests/catalogue/catalogue.cmake (run with cmake -P).
function(kx_records_of headers_text)
  set(includes "")
  set(records "")
  string(REPLACE "|" ";" headers "${headers_text}")
  foreach(header IN LISTS headers)
    get_filename_component(dir "${header}" DIRECTORY)
    get_filename_component(subsystem "${dir}" NAME)
    string(APPEND includes "#include \"${subsystem}/records.h\"\n")
    file(READ "${header}" body)
    string(REGEX MATCHALL "KX_RECORD(_NO_FLUSH)?\\([ \t\r\n]*[A-Za-z0-9_]+" found "${body}")
    foreach(match IN LISTS found)
      string(REGEX REPLACE "^KX_RECORD(_NO_FLUSH)?\\([ \t\r\n]*" "" name "${match}")
      list(APPEND records "${subsystem}/${name}")
    endforeach()
  endforeach()
  set(kx_record_includes "${includes}" PARENT_SCOPE)
  set(kx_records "${records}" PARENT_SCOPE)
endfunction()

# Writes `text` to OUT unless OUT holds it already (so nothing rebuilds).
function(kx_write_if_changed text)
  if(EXISTS "${OUT}")
    file(READ "${OUT}" old)
    if(old STREQUAL text)
      return()
    endif()
  endif()
  file(WRITE "${OUT}" "${text}")
endfunction()
