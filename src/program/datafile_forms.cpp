#include "program/datafile_forms.h"

#include <memory>

#include "datafiles/fileacc_form.h"
#include "program/tool_place.h"

void addDatafileForms(Program& program)
{
    // the settings go where the program stands; messages go on naming where it was started
    const auto moveTo = [&program](const std::filesystem::path& folder) {
        program.currentFolder = folder;
        program.folder = folder;
    };
    program.forms.push_back(toolPlace("fileacc", emptySlot<FileaccForm>(), [&program, moveTo] {
        return std::make_unique<FileaccForm>(program.state, program.outside, *program.vantstart, program.currentFolder,
                                             moveTo);
    }));
}
