#include "console/roster.h"

#include <algorithm>
#include <array>
#include <condition_variable>
#include <cstddef>
#include <deque>
#include <exception>
#include <istream>
#include <memory>
#include <mutex>
#include <ostream>
#include <thread>
#include <utility>

#include "console/prediction_text.h"
#include "console/runner_prediction.h"
#include "console/words.h"

namespace
{
    constexpr std::size_t longestLine = 64 * 1024;   // bytes
    constexpr std::size_t batchLines = 128;
    constexpr std::size_t batchBytes = 64 * 1024;
    constexpr std::size_t batchesPerWorker = 4;   // read ahead, so that no worker waits

    /// What a column holds: the name, a race, or what an entry's key says.
    struct RosterColumn
    {
        std::string_view name;
        std::string_view key;   // of `entryNames`; empty for the name
        int race = 0;           // 1 to 5 for a race
    };

    constexpr std::array<RosterColumn, 14> rosterColumns{{
        {"name", "", 0},
        {"age", "age", 0},
        {"sex", "sex", 0},
        {"miles", "miles", 0},
        {"race1", "race", 1},
        {"race2", "race", 2},
        {"race3", "race", 3},
        {"race4", "race", 4},
        {"race5", "race", 5},
        {"weight_kg", "kg-weight", 0},
        {"height_cm", "cm-height", 0},
        {"best_two", "best-two", 0},
        {"level", "level", 0},
        {"age_compare", "age-compare", 0},
    }};

    using Columns = std::vector<RosterColumn>;

    struct RosterLine
    {
        long long number = 0;   // from 1
        std::string text;
        bool tooLong = false;
    };

    /// Some lines on their way from the reader through a worker to the writer.
    struct Batch
    {
        std::vector<RosterLine> lines;
        std::string rows;     // for the output
        std::string errors;   // for the errors
        bool anyBad = false;
        bool done = false;
        std::exception_ptr failure;
    };

    struct Runner
    {
        std::string name;
        RunnerEntries entries;
    };

    std::string knownColumns()
    {
        std::string names;
        for (const RosterColumn& column : rosterColumns)
            names += (names.empty() ? "" : ", ") + std::string(column.name);
        return names;
    }

    /// Reads the next line of a stream, of whatever length, in bounded memory. Returns false behind the last one.
    bool readLine(std::istream& in, RosterLine& line)
    {
        line.text.clear();
        line.tooLong = false;
        int c = in.get();
        if (c == std::istream::traits_type::eof())
            return false;
        line.number = line.number + 1;
        for (; c != std::istream::traits_type::eof() && c != '\n'; c = in.get())
        {
            if (line.text.size() < longestLine)
                line.text += static_cast<char>(c);
            else
                line.tooLong = true;
        }
        if (line.text.ends_with('\r'))
            line.text.pop_back();
        return true;
    }

    void skipByteOrderMark(std::string& text)
    {
        constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";
        if (text.starts_with(byteOrderMark))
            text.erase(0, byteOrderMark.size());
    }

    std::optional<RosterColumn> columnOf(const std::string& field, std::string& wrong)
    {
        const auto* const column = std::ranges::find(rosterColumns, lowerCase(trimmed(field)), &RosterColumn::name);
        if (column != rosterColumns.end())
            return *column;
        wrong = "the column " + inQuotes(field) + " is not known; the columns are " + knownColumns();
        return std::nullopt;
    }

    std::optional<Columns> readHeader(const RosterLine& line, std::string& wrong)
    {
        if (line.tooLong)
        {
            wrong = "the header line is longer than 65536 bytes";
            return std::nullopt;
        }
        const auto fields = csvFields(line.text, wrong);
        if (!fields)
            return std::nullopt;
        Columns columns;
        bool anyRace = false;
        for (const std::string& field : *fields)
        {
            const auto column = columnOf(field, wrong);
            if (!column)
                return std::nullopt;
            if (std::ranges::find(columns, column->name, &RosterColumn::name) != columns.end())
            {
                wrong = "the column " + inQuotes(field) + " stands there twice";
                return std::nullopt;
            }
            anyRace = anyRace || column->race > 0;
            columns.push_back(*column);
        }
        if (!anyRace)
        {
            wrong = "the header names no race; the columns are " + knownColumns();
            return std::nullopt;
        }
        return columns;
    }

    /// Puts a race into the row that its column says.
    std::optional<std::string> setRaceAt(RunnerEntries& entries, int race, const std::string& field)
    {
        RunnerEntries alone;
        if (auto wrong = setEntry(alone, "race", field))
            return wrong;
        const auto place = static_cast<std::size_t>(race);
        if (entries.races.size() < place)
            entries.races.resize(place);
        entries.races[place - 1] = alone.races.front();
        return std::nullopt;
    }

    std::optional<std::string> setField(Runner& runner, const RosterColumn& column, const std::string& field)
    {
        if (column.key.empty())
            runner.name = field;
        else if (!trimmed(field).empty())
            return column.race > 0 ? setRaceAt(runner.entries, column.race, field)
                                   : setEntry(runner.entries, column.key, field);
        return std::nullopt;
    }

    std::optional<Runner> readRunner(const Columns& columns, const RosterLine& line, std::string& wrong)
    {
        if (line.tooLong)
        {
            wrong = "it is longer than 65536 bytes";
            return std::nullopt;
        }
        const auto fields = csvFields(line.text, wrong);
        if (!fields)
            return std::nullopt;
        if (fields->size() > columns.size())
        {
            wrong =
                std::to_string(fields->size()) + " fields, where the header names " + std::to_string(columns.size());
            return std::nullopt;
        }
        Runner runner;
        for (std::size_t i = 0; i < fields->size(); ++i)
        {
            if (const auto said = setField(runner, columns[i], (*fields)[i]))
            {
                wrong = std::string(columns[i].name) + ": " + *said;
                return std::nullopt;
            }
        }
        return runner;
    }

    std::string rosterRow(const std::string& name, const Prediction& prediction)
    {
        std::string text = csvField(name);
        for (const PredictedRow& row : rowsOf(prediction))
            text += ',' + timeText(row.time);
        return text + '\n';
    }

    void predictLine(const Columns& columns, const RosterRun& run, const RosterLine& line, Batch& batch)
    {
        const std::string place = "line " + std::to_string(line.number) + ": ";
        std::string wrong;
        const auto runner = readRunner(columns, line, wrong);
        if (!runner)
        {
            batch.errors += place + wrong + '\n';
            batch.anyBad = true;
            return;
        }
        const Prediction prediction = predictRunner(overlaid(run.defaults, runner->entries), run.limitSeconds);
        const bool bad = isRefused(prediction) || !prediction.fault.empty();
        for (const Message& message : prediction.messages)
            batch.errors += place + (bad ? "" : "warning: ") + messageLine(message) + '\n';
        if (!prediction.fault.empty())
            batch.errors += place + prediction.fault + '\n';
        if (bad)
            batch.anyBad = true;
        else
            batch.rows += rosterRow(runner->name, prediction);
    }

    void predictBatch(const Columns& columns, const RosterRun& run, Batch& batch)
    {
        for (const RosterLine& line : batch.lines)
            if (line.tooLong || !trimmed(line.text).empty())
                predictLine(columns, run, line, batch);
        batch.lines = {};
    }

    /// Threads that predict batches. They end with it, once they have done the batch at hand.
    class Workers
    {
    public:
        Workers(unsigned count, const Columns& rosterColumnsInUse, const RosterRun& rosterRun)
            : columns(rosterColumnsInUse), run(rosterRun)
        {
            for (unsigned i = 0; i < count; ++i)
                threads.emplace_back([this] { work(); });
        }

        Workers(const Workers&) = delete;
        Workers& operator=(const Workers&) = delete;

        ~Workers()
        {
            {
                const std::lock_guard lock(mutex);
                closed = true;
            }
            workArrived.notify_all();
            for (std::thread& thread : threads)
                thread.join();
        }

        void hand(Batch& batch)
        {
            {
                const std::lock_guard lock(mutex);
                waiting.push_back(&batch);
            }
            workArrived.notify_one();
        }

        /// Returns when a batch that was handed over is done; throws what its prediction threw.
        void await(const Batch& batch)
        {
            std::unique_lock lock(mutex);
            batchDone.wait(lock, [&] { return batch.done; });
            if (batch.failure)
                std::rethrow_exception(batch.failure);
        }

    private:
        Batch* next()
        {
            std::unique_lock lock(mutex);
            workArrived.wait(lock, [&] { return closed || !waiting.empty(); });
            if (closed)
                return nullptr;
            Batch* batch = waiting.front();
            waiting.pop_front();
            return batch;
        }

        void work()
        {
            while (Batch* batch = next())
            {
                std::exception_ptr failure;
                try
                {
                    predictBatch(columns, run, *batch);
                }
                catch (...)
                {
                    failure = std::current_exception();
                }
                {
                    const std::lock_guard lock(mutex);
                    batch->failure = failure;
                    batch->done = true;
                }
                batchDone.notify_one();
            }
        }

        const Columns& columns;
        const RosterRun& run;
        std::mutex mutex;
        std::condition_variable workArrived, batchDone;
        std::deque<Batch*> waiting;
        bool closed = false;
        std::vector<std::thread> threads;
    };

    std::unique_ptr<Batch> readBatch(std::istream& in, RosterLine& line)
    {
        auto batch = std::make_unique<Batch>();
        std::size_t bytes = 0;
        while (batch->lines.size() < batchLines && bytes < batchBytes && readLine(in, line))
        {
            bytes += line.text.size();
            batch->lines.push_back(line);
        }
        return batch->lines.empty() ? nullptr : std::move(batch);
    }

    /// Reads batch after batch, and writes the eldest one when enough are under way. Returns whether any line was bad.
    bool predictLines(std::istream& in, RosterLine& line, Workers& workers, std::size_t mostUnderWay,
                      std::deque<std::unique_ptr<Batch>>& underWay, std::ostream& out, std::ostream& errors)
    {
        bool anyBad = false;
        bool more = true;
        while (out && (more || !underWay.empty()))
        {
            auto batch = more ? readBatch(in, line) : nullptr;
            more = batch != nullptr;
            if (more)
                workers.hand(*underWay.emplace_back(std::move(batch)));
            if (underWay.empty() || (more && underWay.size() < mostUnderWay))
                continue;
            const Batch& eldest = *underWay.front();
            workers.await(eldest);
            out << eldest.rows;
            errors << eldest.errors;
            anyBad = anyBad || eldest.anyBad;
            underWay.pop_front();
        }
        return anyBad;
    }

    std::string headerRow(const RunnerEntries& entries)
    {
        std::string text = "name";
        for (const std::string& label : rowLabels(entries))
            text += ',' + csvField(label);
        return text + '\n';
    }

    /// The field that a quotation mark began, which goes up to its partner; `rest` then begins behind that.
    std::optional<std::string> takeQuoted(std::string_view& rest)
    {
        std::string field;
        for (std::size_t mark = rest.find('"'); mark != std::string_view::npos; mark = rest.find('"'))
        {
            field += rest.substr(0, mark);
            rest.remove_prefix(mark + 1);
            if (!rest.starts_with('"'))
                return field;
            field += '"';
            rest.remove_prefix(1);
        }
        return std::nullopt;
    }
}

std::optional<std::vector<std::string>> csvFields(std::string_view line, std::string& wrong)
{
    std::vector<std::string> fields;
    std::string_view rest = line;
    for (bool more = true; more; rest.remove_prefix(more ? 1 : 0))
    {
        if (rest.starts_with('"'))
        {
            rest.remove_prefix(1);
            auto field = takeQuoted(rest);
            if (!field)
            {
                wrong = "a quotation mark has no partner";
                return std::nullopt;
            }
            if (!rest.empty() && rest.front() != ',')
            {
                wrong = "behind the quoted field " + inQuotes(*field) + " a comma is missing";
                return std::nullopt;
            }
            fields.push_back(std::move(*field));
        }
        else
        {
            fields.emplace_back(rest.substr(0, rest.find(',')));
            rest.remove_prefix(fields.back().size());
        }
        more = !rest.empty();
    }
    return fields;
}

int predictRoster(std::istream& in, const RosterRun& run, std::ostream& out, std::ostream& errors)
{
    const std::string name = "The roster " + inQuotes(run.name);
    RosterLine line;
    if (!readLine(in, line))
    {
        errors << name << (in.bad() ? " can't be read.\n" : " is empty.\n");
        return 2;
    }
    skipByteOrderMark(line.text);
    std::string wrong;
    const auto columns = readHeader(line, wrong);
    if (!columns)
    {
        errors << name << ": line 1: " << wrong << ".\n";
        return 2;
    }
    out << headerRow(run.defaults);
    const unsigned count = run.workers > 0 ? run.workers : std::max(1U, std::thread::hardware_concurrency());
    std::deque<std::unique_ptr<Batch>> underWay;   // outlives the workers, who write into it
    Workers workers(count, *columns, run);
    const bool anyBad = predictLines(in, line, workers, batchesPerWorker * count, underWay, out, errors);
    if (in.bad())
        errors << name << " can't be read beyond line " << line.number << ".\n";
    return anyBad || in.bad() ? 1 : 0;
}
