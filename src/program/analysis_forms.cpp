#include "program/analysis_forms.h"

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <variant>

#include "analysis/anaform_form.h"
#include "analysis/full_report.h"
#include "analysis/graphform_form.h"
#include "forms/files.h"
#include "forms/on_leaving.h"
#include "program/tool_place.h"

namespace
{
    constexpr const char* reportFileName = "fulltext.txt";

    ReportEntries reportEntriesOf(const VantstartForm& form)
    {
        return {form.txtname.text, form.txtage.text, form.txtmi.text,
                form.txtkm.text,   form.Text5.text,  entriesOf(form)};
    }

    /// Draws the graph where the analysis would show it.
    void renewGraph(Program& program)
    {
        Form* const form = findForm(program, "anaform");
        const ControlRef* const pic = form ? findControl(*form, "pic") : nullptr;
        Picture unseen;
        Picture& picture = pic ? *std::get<Picture*>(*pic) : unseen;
        const OnLeaving showIt([&picture] { notifyShown(picture); });
        drawHeartRateGraph(program.state, picture);
    }

    /// Lines as the file holds them: an empty one has a blank.
    std::string bytesOf(const TextPage& page)
    {
        std::string bytes;
        for (const std::string& line : page.lines)
            bytes += (line.empty() ? " " : line) + "\r\n";
        return bytes;
    }

    void saveReport(Program& program, const TextPage& page)
    {
        const std::filesystem::path path = program.currentFolder / reportFileName;
        if (const std::optional<std::string> failure = replaceFile(path, bytesOf(page)))
        {
            program.outside.said.push_back(
                {"The report could not be saved to " + path.string() + ": " + *failure + ".", "Report not saved"});
            return;
        }
        program.outside.said.push_back({"Analysis saved in " + program.startFolder.string() + "\\" + reportFileName});
    }
}

void writeFullReport(Program& program)
{
    TextPage page;
    printFullReport(program.state, reportEntriesOf(*program.vantstart), page);
    const bool toFile = program.state.flags.reportToFile == 1;
    if (!toFile && program.outside.printer.printText)
        program.outside.printer.printText(page.lines);
    renewGraph(program);
    if (toFile)
        saveReport(program, page);
}

void addAnalysisForms(Program& program)
{
    program.vantstart->fullReport = [&program] { writeFullReport(program); };
    program.forms.push_back(plainToolPlace<AnaformForm>(program, "anaform"));
    program.forms.push_back(toolPlace("graphform", emptySlot<GraphformForm>(), [&program] {
        return std::make_unique<GraphformForm>(program.state, program.outside, program.vantstart->HScroll2);
    }));
}
