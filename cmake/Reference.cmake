# The target `reference`: all public headers as HTML, in reference/html of the build folder. A public function without a
# comment is an error. Needs doxygen.
set(reference_headers ${public_headers})
# Brought by public headers, but nothing that hosts call.
list(REMOVE_ITEM reference_headers frame/LifeWatch.h)
list(TRANSFORM reference_headers PREPEND "${PROJECT_SOURCE_DIR}/toolkit/")
file(GLOB suite_headers CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/suite/*.h)
list(APPEND reference_headers ${suite_headers} ${PROJECT_SOURCE_DIR}/docs/guide.md)
list(JOIN reference_headers "\" \\\n    \"" reference_input)

set(reference_settings "${PROJECT_BINARY_DIR}/reference.doxygen")
file(CONFIGURE OUTPUT "${reference_settings}" @ONLY CONTENT [[
PROJECT_NAME = @PROJECT_NAME@
PROJECT_NUMBER = @PROJECT_VERSION@
PROJECT_BRIEF = "@PROJECT_DESCRIPTION@"
OUTPUT_DIRECTORY = "@PROJECT_BINARY_DIR@/reference"
INPUT = "@reference_input@"
USE_MDFILE_AS_MAINPAGE = "@PROJECT_SOURCE_DIR@/docs/guide.md"
STRIP_FROM_PATH = "@PROJECT_SOURCE_DIR@/toolkit" "@PROJECT_SOURCE_DIR@"
FILTER_PATTERNS = *.h="awk -f @PROJECT_SOURCE_DIR@/cmake/reference.awk" *.md="sed -f @PROJECT_SOURCE_DIR@/cmake/reference_guide.sed"
GENERATE_LATEX = NO
HAVE_DOT = NO
CLASS_GRAPH = TEXT
SEARCH_INCLUDES = NO
MACRO_EXPANSION = YES
EXPAND_ONLY_PREDEF = YES
PREDEFINED = INSTRUMENT_UI_API= DECLARE_MESSAGE_MAP()= DECLARE_DYNAMIC(x)= DECLARE_DYNCREATE(x)= DECLARE_SERIAL(x)=
JAVADOC_AUTOBRIEF = YES
QUIET = YES
WARN_IF_UNDOCUMENTED = YES
WARN_AS_ERROR = FAIL_ON_WARNINGS
]])

add_custom_target(reference COMMAND doxygen "${reference_settings}"
    COMMAND ${CMAKE_COMMAND} -E echo "${PROJECT_BINARY_DIR}/reference/html/index.html"
    COMMENT "Building the reference of the public headers" VERBATIM)
