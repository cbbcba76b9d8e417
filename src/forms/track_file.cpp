#include "forms/track_file.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <string>
#include <system_error>

#include <pugixml.hpp>

namespace
{
    constexpr double earthRadius = 6371008.8;   // m, mean
    constexpr double longestWay = 1e8;          // m; more than twice around the earth
    constexpr double longestTime = 1e8;         // s; three years
    constexpr double farthestElevation = 20000;
    constexpr std::ptrdiff_t mostTags = 4'000'000;
    constexpr int deepestNesting = 64;

    /// A point as a file has it; anything may be missing.
    struct RawPoint
    {
        std::optional<double> distance, latitude, longitude, elevation, time;

        [[nodiscard]] bool hasPlace() const { return latitude && longitude; }
    };

    std::string_view localName(std::string_view name)
    {
        return name.substr(name.rfind(':') + 1);   // the prefix of a namespace is the writer's own choice
    }

    bool isNamed(const pugi::xml_node& node, std::string_view name)
    {
        return localName(node.name()) == name;
    }

    pugi::xml_node childNamed(const pugi::xml_node& node, std::string_view name)
    {
        return node.find_child([name](const pugi::xml_node& child) { return isNamed(child, name); });
    }

    std::string_view trimmed(std::string_view text)
    {
        constexpr std::string_view blanks = " \t\r\n";
        text.remove_prefix(std::min(text.find_first_not_of(blanks), text.size()));
        return text.substr(0, text.find_last_not_of(blanks) + 1);
    }

    /// The number that a whole text is, if it lies within bounds.
    std::optional<double> numberOf(std::string_view text, double from, double to)
    {
        text = trimmed(text);
        if (text.starts_with('+') && !text.starts_with("+-"))
            text.remove_prefix(1);   // which decimals may have
        double number = 0;
        const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
        if (error != std::errc{} || end != text.data() + text.size() || !(number >= from && number <= to))
            return std::nullopt;
        return number;
    }

    std::optional<double> childNumber(const pugi::xml_node& node, std::string_view name, double from, double to)
    {
        return numberOf(childNamed(node, name).text().get(), from, to);
    }

    /// Takes a whole number of that many digits off the text.
    bool takeDigits(std::string_view& text, std::size_t digits, int& number)
    {
        if (text.size() < digits)
            return false;
        const auto [end, error] = std::from_chars(text.data(), text.data() + digits, number);
        const bool whole = error == std::errc{} && end == text.data() + digits && number >= 0;
        text.remove_prefix(digits);
        return whole;
    }

    bool takeCharacter(std::string_view& text, char c)
    {
        if (text.empty() || text.front() != c)
            return false;
        text.remove_prefix(1);
        return true;
    }

    /// Days from 1970-01-01 in the calendar of today, counted in eras of 400 years that begin in March.
    double daysSince1970(int year, int month, int day)
    {
        const int y = month <= 2 ? year - 1 : year;
        const int era = y / 400;
        const int yearOfEra = y - era * 400;
        const int dayOfYear = (153 * (month + (month > 2 ? -3 : 9)) + 2) / 5 + day - 1;
        const int dayOfEra = yearOfEra * 365 + yearOfEra / 4 - yearOfEra / 100 + dayOfYear;
        return era * 146097.0 + dayOfEra - 719468;
    }

    /// Seconds that a time's zone, Z or +hh:mm, is ahead; nothing for another text. None is taken as Z.
    std::optional<double> zoneOf(std::string_view text)
    {
        if (text.empty() || text == "Z")
            return 0;
        const double sign = text.front() == '-' ? -1 : 1;
        if (!takeCharacter(text, '+') && !takeCharacter(text, '-'))
            return std::nullopt;
        int hours = 0;
        int minutes = 0;
        if (!takeDigits(text, 2, hours) || !takeCharacter(text, ':') || !takeDigits(text, 2, minutes) || !text.empty())
            return std::nullopt;
        return sign * (hours * 3600 + minutes * 60);
    }

    /// 2024-05-01T10:00:00.5Z in seconds since 1970.
    std::optional<double> instantOf(std::string_view text)
    {
        text = trimmed(text);
        int year = 0;
        int month = 0;
        int day = 0;
        int hour = 0;
        int minute = 0;
        if (!takeDigits(text, 4, year) || !takeCharacter(text, '-') || !takeDigits(text, 2, month) ||
            !takeCharacter(text, '-') || !takeDigits(text, 2, day) || !takeCharacter(text, 'T') ||
            !takeDigits(text, 2, hour) || !takeCharacter(text, ':') || !takeDigits(text, 2, minute) ||
            !takeCharacter(text, ':') || year < 1 || month < 1 || month > 12 || day < 1 || day > 31)
            return std::nullopt;
        const std::size_t end = std::min(text.find_first_not_of("0123456789."), text.size());
        const std::optional<double> second = numberOf(text.substr(0, end), 0, 61);
        const std::optional<double> zone = zoneOf(text.substr(end));
        if (!second || !zone)
            return std::nullopt;
        return daysSince1970(year, month, day) * 86400 + hour * 3600.0 + minute * 60.0 + *second - *zone;
    }

    double radians(double degrees)
    {
        return degrees * (std::acos(-1.0) / 180);
    }

    /// The way over the sphere between two places.
    double wayBetween(const RawPoint& a, const RawPoint& b)
    {
        const double across = std::sin(radians(*b.longitude - *a.longitude) / 2);
        const double up = std::sin(radians(*b.latitude - *a.latitude) / 2);
        const double h = up * up + std::cos(radians(*a.latitude)) * std::cos(radians(*b.latitude)) * across * across;
        return 2 * earthRadius * std::asin(std::sqrt(std::min(h, 1.0)));
    }

    /// Puts points together into a track.
    class TrackBuilder
    {
    public:
        void add(const RawPoint& point)
        {
            if (!point.distance && !point.hasPlace())
                return;
            double distance = points.empty() ? 0 : points.back().distance;
            if (point.distance)
                distance = std::max(distance, *point.distance);
            else if (lastPlace.hasPlace())
                distance += wayBetween(lastPlace, point);
            if (point.hasPlace())
                lastPlace = point;
            points.push_back({distance, point.elevation, timeOf(point)});
        }

        [[nodiscard]] std::vector<TrackPoint> take() { return std::move(points); }

    private:
        std::optional<double> timeOf(const RawPoint& point)
        {
            if (!point.time)
                return std::nullopt;
            if (!firstTime)
                firstTime = point.time;
            latestTime = std::max(latestTime, std::min(*point.time - *firstTime, longestTime));
            return latestTime;
        }

        std::vector<TrackPoint> points;
        RawPoint lastPlace;
        std::optional<double> firstTime;
        double latestTime = 0;
    };

    RawPoint gpxPoint(const pugi::xml_node& node)
    {
        return {{},
                numberOf(node.attribute("lat").value(), -90, 90),
                numberOf(node.attribute("lon").value(), -180, 180),
                childNumber(node, "ele", -farthestElevation, farthestElevation),
                instantOf(childNamed(node, "time").text().get())};
    }

    RawPoint tcxPoint(const pugi::xml_node& node)
    {
        const pugi::xml_node place = childNamed(node, "Position");
        return {childNumber(node, "DistanceMeters", 0, longestWay), childNumber(place, "LatitudeDegrees", -90, 90),
                childNumber(place, "LongitudeDegrees", -180, 180),
                childNumber(node, "AltitudeMeters", -farthestElevation, farthestElevation),
                instantOf(childNamed(node, "Time").text().get())};
    }

    /// The first node in the order of the file that a test holds for, without recursion.
    template <class Test>
    pugi::xml_node findBelow(const pugi::xml_node& root, Test test)
    {
        pugi::xml_node node = root;
        while (node)
        {
            if (test(node))
                return node;
            if (node.first_child())
                node = node.first_child();
            else
            {
                while (node != root && !node.next_sibling())
                    node = node.parent();
                if (node == root)
                    break;
                node = node.next_sibling();
            }
        }
        return {};
    }

    bool isTooDeep(const pugi::xml_node& root)
    {
        int depth = 0;
        pugi::xml_node node = root;
        while (node)
        {
            if (node.first_child())
            {
                node = node.first_child();
                if (++depth > deepestNesting)
                    return true;
                continue;
            }
            while (node != root && !node.next_sibling())
            {
                node = node.parent();
                --depth;
            }
            if (node == root)
                break;
            node = node.next_sibling();
        }
        return false;
    }

    Track gpxTrack(const pugi::xml_node& root)
    {
        const auto holdsPoints = [](const pugi::xml_node& part) {
            return isNamed(part, "rtept") || (isNamed(part, "trkseg") && childNamed(part, "trkpt"));
        };
        const pugi::xml_node track = root.find_child([&](const pugi::xml_node& node) {
            return (isNamed(node, "trk") || isNamed(node, "rte")) && node.find_child(holdsPoints);
        });
        TrackBuilder builder;
        for (const pugi::xml_node& part : track)
        {
            if (isNamed(part, "rtept"))
                builder.add(gpxPoint(part));
            else if (isNamed(part, "trkseg"))
                for (const pugi::xml_node& point : part)
                    if (isNamed(point, "trkpt"))
                        builder.add(gpxPoint(point));
        }
        return {builder.take(), {}};
    }

    void addTracks(TrackBuilder& builder, const pugi::xml_node& holder)
    {
        for (const pugi::xml_node& track : holder)
            if (isNamed(track, "Track"))
                for (const pugi::xml_node& point : track)
                    if (isNamed(point, "Trackpoint"))
                        builder.add(tcxPoint(point));
    }

    Track tcxTrack(const pugi::xml_node& root)
    {
        const auto isRun = [](const auto& node) { return isNamed(node, "Activity") || isNamed(node, "Course"); };
        const pugi::xml_node run = findBelow(root, isRun);
        Track track;
        TrackBuilder builder;
        for (const pugi::xml_node& lap : run)
        {
            if (!isNamed(lap, "Lap"))
                continue;
            const std::optional<double> metres = childNumber(lap, "DistanceMeters", 0, longestWay);
            const std::optional<double> seconds = childNumber(lap, "TotalTimeSeconds", 0, longestTime);
            if (metres.value_or(0) > 0 && seconds.value_or(0) > 0)
                track.laps.push_back({*metres, *seconds});
            addTracks(builder, lap);
        }
        addTracks(builder, run);   // a course has its track beside its laps
        track.points = builder.take();
        return track;
    }

    std::optional<Track> refuse(Messages& said, const std::string& why)
    {
        said.push_back({"The file can't be read: " + why + "."});
        return std::nullopt;
    }

    /// Why a file is not even parsed; nothing for one that may be.
    const char* refusalOf(std::string_view bytes)
    {
        if (bytes.size() > longestTrackFile)
            return "it is larger than 32 megabytes";
        if (std::count(bytes.begin(), bytes.end(), '<') > mostTags)
            return "it has more elements than any watch writes";
        for (const std::string_view declaration : {"<!DOCTYPE", "<!ENTITY"})
            if (bytes.find(declaration) != std::string_view::npos)
                return "it defines a document type, which no TCX or GPX file does";
        return nullptr;
    }
}

std::optional<Track> readTrack(std::string_view bytes, Messages& said)
{
    if (const char* refusal = refusalOf(bytes))
        return refuse(said, refusal);
    pugi::xml_document document;
    const pugi::xml_parse_result parsed =
        document.load_buffer(bytes.data(), bytes.size(), pugi::parse_default | pugi::parse_doctype);
    if (!parsed)
        return refuse(said, "it is no XML, or breaks off");
    if (std::any_of(document.begin(), document.end(),
                    [](const pugi::xml_node& node) { return node.type() == pugi::node_doctype; }))
        return refuse(said, "it defines a document type, which no TCX or GPX file does");
    if (isTooDeep(document))
        return refuse(said, "its elements are nested deeper than any watch writes");
    const pugi::xml_node root = document.document_element();
    if (isNamed(root, "gpx"))
        return gpxTrack(root);
    if (isNamed(root, "TrainingCenterDatabase"))
        return tcxTrack(root);
    return refuse(said, "it is neither a TCX nor a GPX file");
}

std::vector<TrackLap> evenLaps(const Track& track, double step, std::size_t mostLaps)
{
    std::vector<TrackLap> laps;
    const TrackPoint* before = nullptr;
    TrackPoint lapStart;
    for (const TrackPoint& point : track.points)
    {
        if (!point.time)
            continue;
        if (!before)
            lapStart = point;
        while (before && point.distance - lapStart.distance >= step && laps.size() <= mostLaps)
        {
            const double end = lapStart.distance + step;
            const double share = (end - before->distance) / (point.distance - before->distance);
            const double time = *before->time + share * (*point.time - *before->time);
            laps.push_back({step, time - *lapStart.time});
            lapStart = {end, {}, time};
        }
        before = &point;
    }
    constexpr double shortestRest = 1;   // m
    if (before && before->distance - lapStart.distance >= shortestRest && laps.size() <= mostLaps)
        laps.push_back({before->distance - lapStart.distance, *before->time - *lapStart.time});
    return laps;
}
