// Every #include below src/ must point the way of the layers: desktop and console stand on program, program on the
// forms, the forms on the forms kit and the logic, all logic on the model; the model stands on itself.

#include <algorithm>
#include <cstddef>
#include <filesystem>
#include <fstream>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

namespace
{
    enum class Layer { unknown, model, logic, kit, form, program, console, desktop };

    constexpr std::string_view logicFolders =
        " prediction analysis power special workouts splits course weather tables datafiles help ";

    constexpr std::string_view standardHeaders =
        " algorithm any array atomic barrier bit bitset cassert cctype cerrno cfenv cfloat charconv chrono"
        " cinttypes climits clocale cmath compare complex concepts condition_variable coroutine csetjmp"
        " csignal cstdarg cstddef cstdint cstdio cstdlib cstring ctime cuchar cwchar cwctype deque exception"
        " execution filesystem format forward_list fstream functional future initializer_list iomanip ios"
        " iosfwd iostream istream iterator latch limits list locale map memory memory_resource mutex new"
        " numbers numeric optional ostream queue random ranges ratio regex scoped_allocator semaphore set"
        " shared_mutex source_location span sstream stack stdexcept stop_token streambuf string string_view"
        " syncstream system_error thread tuple type_traits typeindex typeinfo unordered_map unordered_set"
        " utility valarray variant vector version ";

    /// What the forms kit may use besides: to write a file so that it outlives a power cut, and to read XML.
    constexpr std::string_view kitHeaders = " fcntl.h sys/stat.h unistd.h pugixml.hpp ";

    /// Whether `names`, which has a blank on either side of each of them, holds `name`.
    bool isOneOf(std::string_view names, std::string_view name)
    {
        return names.find(" " + std::string(name) + " ") != std::string_view::npos;
    }

    /// The layer of "folder/file.h" or "folder/file.cpp"; unknown for any other path.
    Layer layerOf(std::string_view path)
    {
        const std::size_t slash = path.find('/');
        if (slash == std::string_view::npos || path.find('/', slash + 1) != std::string_view::npos)
            return Layer::unknown;
        const std::string_view folder = path.substr(0, slash);
        const std::string_view file = path.substr(slash + 1);
        if (folder == "model")
            return Layer::model;
        if (isOneOf(logicFolders, folder))
            return file.ends_with("_form.h") || file.ends_with("_form.cpp") ? Layer::form : Layer::logic;
        if (folder == "forms")
            return Layer::kit;
        if (folder == "program")
            return Layer::program;
        if (folder == "console")
            return Layer::console;
        return folder == "desktop" ? Layer::desktop : Layer::unknown;
    }

    bool mayUse(Layer from, Layer to)
    {
        switch (from)
        {
        case Layer::model: return to == Layer::model;
        case Layer::logic: return to == Layer::model || to == Layer::logic;
        case Layer::kit: return to == Layer::model || to == Layer::logic || to == Layer::kit;
        case Layer::form: return to != Layer::unknown && to <= Layer::form;
        case Layer::program: return to != Layer::unknown && to <= Layer::program;
        case Layer::console: return to != Layer::unknown && to <= Layer::console;
        case Layer::desktop: return to != Layer::unknown && to != Layer::console;
        case Layer::unknown: break;
        }
        return false;
    }

    /// "QWidget", "QtTest", "QtCore/QString".
    bool isQt(std::string_view header)
    {
        return header.size() > 1 && header[0] == 'Q' && (header[1] == 't' || (header[1] >= 'A' && header[1] <= 'Z'));
    }

    /// What is wrong with an include.
    ///   path     the file that holds it, below src/: "model/text.cpp"
    ///   include  as it is written, with its marks: "\"model/text.h\"", "<vector>"
    /// Returns a sentence's end, or an empty text when the include is in order.
    std::string wrongWith(std::string_view path, std::string_view include)
    {
        const Layer from = layerOf(path);
        if (from == Layer::unknown)
            return "stands in a file that belongs to no layer";
        if (include.size() < 3)
            return "is not a plain name in quotes or angle brackets";
        const std::string_view name = include.substr(1, include.size() - 2);
        if (include.front() == '<' && include.back() == '>')
        {
            if (isQt(name))
                return from == Layer::desktop ? "" : "brings Qt in below the desktop";
            if (layerOf(name) != Layer::unknown)
                return "names a header of ours in angle brackets";
            if (from == Layer::console || from == Layer::desktop || isOneOf(standardHeaders, name))
                return "";
            if (from == Layer::kit && isOneOf(kitHeaders, name))
                return "";
            return "is not of the standard library, and this layer uses nothing else";
        }
        if (include.front() != '"' || include.back() != '"')
            return "is not a plain name in quotes or angle brackets";
        if (name.find("..") != std::string_view::npos)
            return "is relative";
        if (from == Layer::desktop && name.starts_with("ui_") && name.ends_with(".h"))
            return "";   // compiled from the form file beside it
        const Layer to = layerOf(name);
        if (to == Layer::unknown || !name.ends_with(".h"))
            return "is not written \"folder/file.h\"";
        return mayUse(from, to) ? "" : "points back up";
    }

    struct IncludeCase
    {
        const char* name;
        const char* path;
        const char* include;
        bool good;
    };

    class Include : public testing::TestWithParam<IncludeCase>
    {};

    TEST_P(Include, IsJudged)
    {
        const IncludeCase& row = GetParam();
        EXPECT_EQ(wrongWith(row.path, row.include).empty(), row.good) << wrongWith(row.path, row.include);
    }

    constexpr auto caseName = [](const auto& row) { return row.param.name; };

    INSTANTIATE_TEST_SUITE_P(
        Good, Include,
        testing::Values(IncludeCase{"model_on_model", "model/race_time.cpp", "\"model/units.h\"", true},
                        IncludeCase{"model_on_standard", "model/race_time.h", "<string_view>", true},
                        IncludeCase{"logic_on_model", "splits/split_table.cpp", "\"model/units.h\"", true},
                        IncludeCase{"logic_on_other_logic", "course/course_solver.h", "\"weather/heat.h\"", true},
                        IncludeCase{"kit_on_model", "forms/controls.h", "\"model/arithmetic.h\"", true},
                        IncludeCase{"kit_on_system", "forms/files.cpp", "<unistd.h>", true},
                        IncludeCase{"kit_on_xml", "forms/track_file.cpp", "<pugixml.hpp>", true},
                        IncludeCase{"form_on_kit", "power/power_form.h", "\"forms/controls.h\"", true},
                        IncludeCase{"form_on_logic", "power/power_form.cpp", "\"power/incline.h\"", true},
                        IncludeCase{"form_on_other_form", "power/power_form.cpp", "\"tables/table_form.h\"", true},
                        IncludeCase{"program_on_form", "program/program.cpp", "\"power/power_form.h\"", true},
                        IncludeCase{"console_on_program", "console/drive.cpp", "\"program/program.h\"", true},
                        IncludeCase{"console_on_logic", "console/call.cpp", "\"power/incline.h\"", true},
                        IncludeCase{"console_on_third_party", "console/predict.cpp", "<nlohmann/json.hpp>", true},
                        IncludeCase{"desktop_on_program", "desktop/binder.cpp", "\"program/program.h\"", true},
                        IncludeCase{"desktop_on_its_form", "desktop/main_window.cpp", "\"ui_vantstart.h\"", true},
                        IncludeCase{"desktop_on_qt", "desktop/binder.cpp", "<QLineEdit>", true},
                        IncludeCase{"desktop_on_qt_module", "desktop/binder.cpp", "<QtCore/QString>", true}),
        caseName);

    INSTANTIATE_TEST_SUITE_P(
        Bad, Include,
        testing::Values(IncludeCase{"model_on_logic", "model/race_time.cpp", "\"prediction/calculate.h\"", false},
                        IncludeCase{"model_on_kit", "model/race_time.cpp", "\"forms/controls.h\"", false},
                        IncludeCase{"logic_on_form", "power/incline.cpp", "\"power/power_form.h\"", false},
                        IncludeCase{"logic_on_kit", "power/incline.cpp", "\"forms/controls.h\"", false},
                        IncludeCase{"logic_on_program", "power/incline.cpp", "\"program/program.h\"", false},
                        IncludeCase{"logic_on_console", "power/incline.cpp", "\"console/call.h\"", false},
                        IncludeCase{"logic_on_third_party", "datafiles/reader.cpp", "<nlohmann/json.hpp>", false},
                        IncludeCase{"logic_on_c_header", "datafiles/reader.cpp", "<math.h>", false},
                        IncludeCase{"logic_on_system", "datafiles/reader.cpp", "<unistd.h>", false},
                        IncludeCase{"logic_on_qt", "power/incline.cpp", "<QString>", false},
                        IncludeCase{"kit_on_form", "forms/controls.h", "\"power/power_form.h\"", false},
                        IncludeCase{"kit_on_program", "forms/controls.h", "\"program/program.h\"", false},
                        IncludeCase{"kit_on_qt", "forms/picture.cpp", "<QPainter>", false},
                        IncludeCase{"kit_on_third_party", "forms/picture.cpp", "<CLI/CLI.hpp>", false},
                        IncludeCase{"logic_on_xml", "splits/reader.cpp", "<pugixml.hpp>", false},
                        IncludeCase{"form_on_xml", "splits/splits_form.cpp", "<pugixml.hpp>", false},
                        IncludeCase{"form_on_system", "power/power_form.cpp", "<unistd.h>", false},
                        IncludeCase{"form_on_program", "power/power_form.cpp", "\"program/program.h\"", false},
                        IncludeCase{"form_on_qt", "power/power_form.cpp", "<QtCore/QString>", false},
                        IncludeCase{"console_on_a_form_file", "console/drive.cpp", "\"ui_vantstart.h\"", false},
                        IncludeCase{"form_on_desktop", "power/power_form.cpp", "\"desktop/binder.h\"", false},
                        IncludeCase{"form_on_third_party", "power/power_form.cpp", "<CLI/CLI.hpp>", false},
                        IncludeCase{"program_on_console", "program/program.cpp", "\"console/drive.h\"", false},
                        IncludeCase{"program_on_desktop", "program/program.cpp", "\"desktop/binder.h\"", false},
                        IncludeCase{"console_on_desktop", "console/drive.cpp", "\"desktop/binder.h\"", false},
                        IncludeCase{"console_on_qt", "console/drive.cpp", "<QString>", false},
                        IncludeCase{"desktop_on_console", "desktop/binder.cpp", "\"console/drive.h\"", false},
                        IncludeCase{"relative_up", "power/incline.cpp", "\"../model/units.h\"", false},
                        IncludeCase{"relative_in_the_middle", "power/incline.cpp", "\"model/../units.h\"", false},
                        IncludeCase{"without_its_folder", "model/text.cpp", "\"text.h\"", false},
                        IncludeCase{"from_too_deep_a_folder", "model/deep/text.cpp", "<string>", false},
                        IncludeCase{"from_an_unknown_folder", "misc/text.cpp", "<string>", false},
                        IncludeCase{"of_too_deep_a_folder", "model/text.cpp", "\"model/deep/text.h\"", false},
                        IncludeCase{"of_an_unknown_folder", "model/text.cpp", "\"misc/text.h\"", false},
                        IncludeCase{"of_a_source_file", "model/text.cpp", "\"model/units.cpp\"", false},
                        IncludeCase{"ours_in_angle_brackets", "console/call.cpp", "<model/units.h>", false},
                        IncludeCase{"a_macro", "model/text.cpp", "HEADER", false},
                        IncludeCase{"nothing", "model/text.cpp", "", false}),
        caseName);

    /// The files of src/ that hold code, as paths below it.
    std::set<std::string> sourceFiles(const std::filesystem::path& src)
    {
        std::set<std::string> files;
        for (const auto& entry : std::filesystem::recursive_directory_iterator(src))
            if (const auto ending = entry.path().extension(); ending == ".h" || ending == ".cpp" || ending == ".ui")
                files.insert(std::filesystem::relative(entry.path(), src).generic_string());
        return files;
    }

    /// What a line includes, as it is written there with its marks; nothing if it is no #include.
    std::optional<std::string> includedBy(std::string_view line)
    {
        for (const std::string_view word : {"#", "include"})
        {
            line.remove_prefix(std::min(line.find_first_not_of(" \t"), line.size()));
            if (!line.starts_with(word))
                return std::nullopt;
            line.remove_prefix(word.size());
        }
        line.remove_prefix(std::min(line.find_first_not_of(" \t"), line.size()));
        const std::size_t end = line.find_first_of(line.starts_with('<') ? ">" : "\"", 1);
        return std::string(line.substr(0, end == std::string_view::npos ? end : end + 1));
    }

    std::vector<std::string> includesOf(const std::filesystem::path& file)
    {
        std::vector<std::string> includes;
        std::ifstream stream(file);
        for (std::string line; std::getline(stream, line);)
            if (auto include = includedBy(line))
                includes.push_back(std::move(*include));
        return includes;
    }

    TEST(Includes, AreReadAsWritten)
    {
        EXPECT_EQ(includedBy("#include \"model/text.h\""), "\"model/text.h\"");
        EXPECT_EQ(includedBy("  #\tinclude<vector>   // rows"), "<vector>");
        EXPECT_EQ(includedBy("#include HEADER"), "HEADER");
        EXPECT_EQ(includedBy("#include \"model/text.h"), "\"model/text.h");
        EXPECT_EQ(includedBy("#define rows 3"), std::nullopt);
        EXPECT_EQ(includedBy("// #include <vector>"), std::nullopt);
        EXPECT_EQ(includedBy(""), std::nullopt);
    }

    /// The file below src/ that an include in quotes stands for: a header, or the form file that one is compiled from.
    std::string fileBehind(const std::string& include)
    {
        const std::string name = include.substr(1, include.size() - 2);
        if (!name.starts_with("ui_"))
            return name;
        return "desktop/" + name.substr(3, name.size() - 5) + ".ui";
    }

    TEST(Includes, PointDownwardsAndExist)
    {
        const std::filesystem::path src = std::filesystem::path(VANTELOS_SOURCE_DIR) / "src";
        const std::set<std::string> files = sourceFiles(src);
        int arrows = 0;
        for (const std::string& file : files)
            for (const std::string& include : includesOf(src / file))
            {
                ++arrows;
                EXPECT_EQ(wrongWith(file, include), "") << "src/" << file << ": #include " << include;
                EXPECT_TRUE(include.starts_with('<') || files.contains(fileBehind(include)))
                    << "src/" << file << ": #include " << include << " names no file";
            }
        EXPECT_GT(arrows, 0) << "no #include was found below " << src;
    }
}
