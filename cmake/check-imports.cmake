cmake_minimum_required(VERSION 3.25)
# Fails unless EXE starts on Windows 7 SP1: every DLL it imports is one that
# Windows itself ships, and every function it imports from them is one that
# mingw-w64's headers declare at the Windows 7 level. A function newer than
# that must be looked up at run time instead, or the loader refuses the
# program before it runs. The check compiles a file that takes the address of
# each imported name with _WIN32_WINNT=0x0601: an undeclared name fails it.
# Arguments: EXE, OBJDUMP, CXX (the cross compiler), WORK (a scratch folder).
set(system_dlls advapi32 comctl32 comdlg32 gdi32 gdiplus kernel32 msvcrt ole32 oleaut32 psapi shell32 shlwapi user32
    uxtheme version)
# The C runtime's imports are the runtime's own: msvcrt.dll differs between
# releases of Windows, and what the static runtime takes from it is not ours.
set(unchecked_dlls msvcrt)
# Functions Windows 7 has that the headers do not declare at its level, each
# with the reason. None so far.
set(known_in_windows7)
# Functions newer than Windows 7 that the headers declare at its level anyway.
set(newer_though_declared GetSystemTimePreciseAsFileTime)  # Windows 8

execute_process(COMMAND ${OBJDUMP} -p ${EXE} OUTPUT_VARIABLE dump RESULT_VARIABLE failed)
if(failed)
  message(FATAL_ERROR "objdump could not read ${EXE}")
endif()
string(REPLACE ";" "," dump "${dump}")
string(REPLACE "\n" ";" lines "${dump}")

set(dll "")
set(references "")
set(dlls_seen "")
foreach(line IN LISTS lines)
  if(line MATCHES "DLL Name: ([^.]+)\\.[dD][lL][lL]")
    string(TOLOWER "${CMAKE_MATCH_1}" dll)
    if(NOT dll IN_LIST system_dlls)
      message(FATAL_ERROR "${EXE} imports ${dll}.dll, which is not a system DLL")
    endif()
    list(APPEND dlls_seen ${dll})
  elseif(line STREQUAL "" OR line MATCHES "^[^\t ]")
    set(dll "")
  elseif(dll AND NOT dll IN_LIST unchecked_dlls AND line MATCHES "^\t[0-9a-fA-F]+\t *[0-9]+  (.+)$")
    set(name "${CMAKE_MATCH_1}")
    if(NOT name MATCHES "^[A-Za-z_][A-Za-z0-9_]*$")
      message(FATAL_ERROR "${EXE} imports \"${name}\" from ${dll}.dll by ordinal, which no header can vouch for")
    endif()
    if(name IN_LIST newer_though_declared)
      message(FATAL_ERROR "${EXE} imports ${name} from ${dll}.dll, which Windows 7 lacks; look it up at run time")
    elseif(NOT name IN_LIST known_in_windows7)
      set(dll_of_${name} ${dll})
      string(APPEND references "    reinterpret_cast<const void*>(&${name}),\n")
    endif()
  endif()
endforeach()
if(NOT dlls_seen)
  message(FATAL_ERROR "no imports found in ${EXE}")
endif()
message(STATUS "imports ${dlls_seen}")

file(MAKE_DIRECTORY ${WORK})
set(source ${WORK}/imports.cpp)
file(WRITE ${source} "// Every function the program imports, as Windows 7's headers declare it.
#include <windows.h>
#include <commctrl.h>
#include <commdlg.h>
#include <objbase.h>
#include <oleauto.h>
#include <psapi.h>
#include <shellapi.h>
#include <shlobj.h>
#include <shlwapi.h>
#include <uxtheme.h>
#include <gdiplus.h>
using namespace Gdiplus::DllExports;

const void* const imported[] = {
${references}};
")
execute_process(
  COMMAND ${CMAKE_COMMAND} -E env LC_ALL=C ${CXX} -fsyntax-only -std=c++20 -DUNICODE -D_UNICODE -DNOMINMAX -D_WIN32_WINNT=0x0601 -DWINVER=0x0601
          -fmax-errors=0 ${source}
  OUTPUT_VARIABLE out ERROR_VARIABLE out RESULT_VARIABLE failed)
if(failed)
  string(REGEX MATCHALL "'[A-Za-z0-9_]+' was not declared" undeclared "${out}")
  if(NOT undeclared)
    message(FATAL_ERROR "the check of ${EXE}'s imports did not compile:\n${out}")
  endif()
  set(report "")
  foreach(found IN LISTS undeclared)
    string(REGEX REPLACE "'([A-Za-z0-9_]+)'.*" "\\1" name "${found}")
    string(APPEND report "\n  ${name} from ${dll_of_${name}}.dll")
  endforeach()
  message(FATAL_ERROR "${EXE} imports functions that Windows 7 lacks; look them up at run time:${report}")
endif()
message(STATUS "every imported function is one Windows 7 has")
