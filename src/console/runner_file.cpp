#include "console/runner_file.h"

#include <algorithm>
#include <cstddef>
#include <functional>
#include <set>

#include <nlohmann/json.hpp>

#include "console/words.h"
#include "forms/files.h"
#include "model/text.h"

namespace
{
    using Json = nlohmann::ordered_json;

    constexpr std::size_t mostBytes = 1024 * 1024;
    constexpr int mostNesting = 3;

    std::string placeOf(std::string_view bytes, std::size_t byte)
    {
        const std::string_view before = bytes.substr(0, byte == 0 ? 0 : byte - 1);
        return "line " + std::to_string(1 + std::ranges::count(before, '\n'));
    }

    /// What nesting and doubled keys say against a file; they are seen while it is parsed.
    class Watch
    {
    public:
        bool operator()(int depth, Json::parse_event_t event, const Json& parsed)
        {
            const bool begins = event == Json::parse_event_t::object_start || event == Json::parse_event_t::array_start;
            if (begins && depth >= mostNesting)
                said = "it is nested too deeply";
            if (event == Json::parse_event_t::key && depth == 1 && !keys.insert(parsed.get<std::string>()).second)
                said = "the key " + inQuotes(parsed.get<std::string>()) + " stands there twice";
            return said.empty();
        }

        std::string said;

    private:
        std::set<std::string> keys;
    };

    std::optional<Json> parsed(std::string_view bytes, std::string& wrong)
    {
        Watch watch;
        try
        {
            Json json = Json::parse(bytes, std::ref(watch));
            wrong = watch.said;
            if (!wrong.empty())
                return std::nullopt;
            return json;
        }
        catch (const Json::parse_error& error)
        {
            wrong = "it is not JSON: " + placeOf(bytes, error.byte);
        }
        catch (const Json::exception&)
        {
            wrong = "a number in it is too large";
        }
        if (!watch.said.empty())
            wrong = watch.said;
        return std::nullopt;
    }

    const char* expectedOf(EntryKind kind)
    {
        switch (kind)
        {
        case EntryKind::text: return "a text";
        case EntryKind::number: return "a number";
        case EntryKind::numberOrText: return "a number or a text";
        case EntryKind::yesNo: break;
        }
        return "true or false";
    }

    /// A value as it would be typed; nothing if it is of the wrong kind.
    std::optional<std::string> typed(const Json& value, EntryKind kind)
    {
        const bool number = kind == EntryKind::number || kind == EntryKind::numberOrText;
        const bool text = kind == EntryKind::text || kind == EntryKind::numberOrText;
        if (number && value.is_number())
            return exactText(value.get<double>());
        if (text && value.is_string())
            return value.get<std::string>();
        if (kind == EntryKind::yesNo && value.is_boolean())
            return value.get<bool>() ? "yes" : "no";
        return std::nullopt;
    }

    std::string keyOf(const EntryName& name)
    {
        return std::string(name.key) + (name.repeated ? "s" : "");
    }

    std::optional<std::string> takeValue(RunnerEntries& entries, const EntryName& name, const Json& value)
    {
        const auto text = typed(value, name.kind);
        if (!text)
            return std::string("it must be ") + expectedOf(name.kind);
        return name.set(entries, *text);
    }

    std::optional<std::string> takeList(RunnerEntries& entries, const EntryName& name, const Json& list)
    {
        if (!list.is_array())
            return std::string("it must be a list of texts");
        for (const Json& value : list)
            if (auto wrong = takeValue(entries, name, value))
                return wrong;
        return std::nullopt;
    }

    std::optional<std::string> takeEntry(RunnerEntries& entries, const std::string& key, const Json& value)
    {
        const auto* const name = std::ranges::find(entryNames, key, keyOf);
        if (name == entryNames.end())
            return std::string("there is no such key");
        return name->repeated ? takeList(entries, *name, value) : takeValue(entries, *name, value);
    }
}

std::optional<RunnerEntries> runnerOfJson(std::string_view bytes, std::string& wrong)
{
    if (bytes.size() > mostBytes)
    {
        wrong = "it is larger than 1 MiB";
        return std::nullopt;
    }
    const auto json = parsed(bytes, wrong);
    if (!json)
        return std::nullopt;
    if (!json->is_object())
    {
        wrong = "it is not one JSON object";
        return std::nullopt;
    }
    RunnerEntries entries;
    for (const auto& [key, value] : json->items())
    {
        if (const auto said = takeEntry(entries, key, value))
        {
            wrong = "key " + inQuotes(key) + ": " + *said;
            return std::nullopt;
        }
    }
    if (const auto said = contradictionIn(entries))
    {
        wrong = *said;
        return std::nullopt;
    }
    return entries;
}

std::optional<RunnerEntries> readRunnerFile(const std::filesystem::path& path, std::string& wrong)
{
    const std::string name = "The runner file " + inQuotes(path.string());
    const auto bytes = readFile(path, mostBytes + 1);
    if (!bytes)
    {
        wrong = name + " can't be read.";
        return std::nullopt;
    }
    auto entries = runnerOfJson(*bytes, wrong);
    if (!entries)
        wrong = name + ": " + wrong;
    return entries;
}
