# Writes small source trees, each with one line that goes against a rule, and tests that CheckLayers reports that line.
#   cmake -DSCRIPT=<CheckLayers.cmake> -DFOLDER=<where to build them> -P CheckLayersTest.cmake

set(failures "")

macro(sound_house)
    file(REMOVE_RECURSE ${FOLDER})
    file(WRITE ${FOLDER}/src/engine/values/Collation.cpp "#include <sqlite3.h>\n#include <unicode/uchar.h>\n")
    file(WRITE ${FOLDER}/src/engine/run/Session.cpp "#include \"engine/run/Session.h\"\n#include <vector>\n")
    file(WRITE ${FOLDER}/src/ado/Connection.cpp "#include \"engine/run/Session.h\"\n#include <QString>\n")
    file(WRITE ${FOLDER}/src/state/variabili.h "#include \"ado/Recordset.h\"\n")
    file(WRITE ${FOLDER}/src/kit/Regole.cpp "#include \"state/variabili.h\"\n#include \"ado/Error.h\"\n")
    file(WRITE ${FOLDER}/src/controls/Boxes.cpp "#include <QMessageBox>\n")
    file(WRITE ${FOLDER}/src/session/About.ui "<ui/>\n")
    file(WRITE ${FOLDER}/src/session/About.cpp "#include \"session/About.h\"\n#include \"ui_About.h\"\n")
    file(WRITE ${FOLDER}/src/session/Twin.cpp "#include \"ui_About.h\"\n")
    file(WRITE ${FOLDER}/src/app/main.cpp "#include \"app/Forms.h\"\n#include \"session/About.h\"\n")
    file(WRITE ${FOLDER}/tests/engine/Test.cpp "const char* kName = \"vabo-XXXXXX\";\n")
endmacro()

macro(check)
    execute_process(COMMAND ${CMAKE_COMMAND} -DROOT=${FOLDER} -P ${SCRIPT}
                    RESULT_VARIABLE result ERROR_VARIABLE said OUTPUT_QUIET)
    string(REGEX REPLACE "[ \n]+" " " said "${said}") # messages are wrapped
endmacro()

# refused(<file> <line> <reason>): the correct tree with that line added is reported with that reason.
function(refused file line reason)
    sound_house()
    file(APPEND ${FOLDER}/${file} "${line}\n")
    check()
    string(FIND "${said}" "${file}: ${reason}" place)
    if(result EQUAL 0 OR place LESS 0)
        set(failures "${failures}\n${file} with ${line}: ${said}" PARENT_SCOPE)
    endif()
endfunction()

sound_house()
check()
if(NOT result EQUAL 0)
    string(APPEND failures "\nthe sound house is refused: ${said}")
endif()

refused(src/engine/run/Session.cpp "#include \"ado/Error.h\"" "engine may not include ado/Error.h")
refused(src/engine/run/Session.cpp "#include <QString>" "the engine does without QString")
refused(src/engine/run/Session.cpp "#include <unicode/ucol.h>" "ICU stands in one file of the engine")
refused(src/engine/values/Collation.cpp "#include \"engine/text/Tree.h\""
        "the engine's values may not include engine/text/Tree.h")
refused(src/engine/Loose.cpp "#include <vector>" "a source of the engine stands in one of its rooms")
refused(src/engine/run/Session.cpp "#include \"engine/attic/Chest.h\"" "the engine's run may not include engine/attic/Chest.h")
refused(src/ado/Text.cpp "#include <unicode/ucol.h>" "ICU stands in one file of the engine")
refused(src/ado/Connection.cpp "#include \"platform/DriveC.h\"" "ado may not include platform/DriveC.h")
refused(src/ado/Connection.cpp "  #  include <sqlite3.h>" "only the engine includes sqlite3.h")
refused(src/platform/DriveC.cpp "#include \"engine/run/Session.h\"" "platform may not include engine/run/Session.h")
refused(src/platform/DriveC.h "#include \"kit/Regole.h\"" "platform may not include kit/Regole.h")
refused(src/controls/Form.cpp "#include \"kit/Regole.h\"" "controls may not include kit/Regole.h")
refused(src/controls/Form.cpp "#include \"state/variabili.h\"" "controls may not include state/variabili.h")
refused(src/state/variabili.h "#include \"kit/Regole.h\"" "state may not include kit/Regole.h")
refused(src/state/variabili.h "#include \"platform/Process.h\"" "state may not include platform/Process.h")
refused(src/kit/Regole.cpp "#include \"session/ApriDbSede.h\"" "kit may not include session/ApriDbSede.h")
refused(src/kit/Regole.cpp "#include \"session/TreatForms.h\"" "kit may not include session/TreatForms.h")
refused(src/kit/Regole.cpp "#include \"app/Forms.h\"" "only app includes app/Forms.h")
refused(src/session/Aziende.cpp "#include \"app/Forms.h\"" "only app includes app/Forms.h")
refused(src/session/Avvio.cpp "#include \"session/About.h\"" "the form session/About.h is asked for by its name")
refused(src/session/About.cpp "QFileDialog dialog\;" "boxes are asked for through platform/Dialogs.h")
set(nothing "") # the marks stand in the samples alone
refused(src/session/About.h "// TO${nothing}DO: later" "a mark of unfinished work")
refused(tests/engine/Test.cpp "// FIX${nothing}ME" "a mark of unfinished work")

file(REMOVE_RECURSE ${FOLDER})
if(failures)
    message(FATAL_ERROR "${failures}")
endif()
