# Visual Studio with Microsoft's MFC as a shared library. Gives the same target names as our framework folder.
set(CMAKE_MFC_FLAG 2)
add_library(framework INTERFACE)
target_compile_definitions(framework INTERFACE _AFXDLL)
add_library(framework_main INTERFACE)
