#include "Report.h"

#include <algorithm>
#include <cstdio>
#include <functional>
#include <optional>
#include <ostream>

using namespace Bench;

namespace {

/// What our own figure must be, and should be.
struct Target {
    std::string work, must, aim;
};
const std::vector<Target> targets = {
    {loadWork, "0.45", "0.30"},       {readOnlyWork, "0.40", "0.28"},    {lookUpWork, "0.03", "0.01"},
    {updateNoneWork, "0.30", "0.12"}, {updateTenthWork, "0.35", "0.15"}, {saveWork, "0.20", "0.08"},
    {mergeWork, "0.20", "0.08"},      {dumpWork, "1.05", "0.80"},        {saveContentsWork, "1.05", "0.15"},
    {packetWork, "1.1", "2.4"},
};
const Target memoryTarget = {"", "8", "5"};
const Target growthTarget = {"", "13", "11"};
const Target threadsTarget = {"", "1.8", "1.95"};

using Row = std::vector<std::string>;

/// Lines of cells under a heading; the first line is the head.
struct Section {
    std::string title;
    std::vector<Row> rows;
};

std::string Number(double value) {
    char text[32];
    std::snprintf(text, sizeof(text),
                  value >= 100     ? "%.0f"
                  : value >= 10    ? "%.1f"
                  : value >= 0.095 ? "%.2f"
                                   : "%.3f",
                  value);
    return text;
}

/// Width on the screen: UTF-8 beyond ASCII does not occur in our tables.
std::string Padded(const std::string& text, std::size_t width, bool isRight) {
    const std::string blanks(width - std::min(width, text.size()), ' ');
    return isRight ? blanks + text : text + blanks;
}

void Print(std::ostream& to, const Section& section, Format format) {
    if (section.rows.size() < 2) {
        return;
    }
    to << (format == Format::Markdown ? "\n**" : "\n") << section.title
       << (format == Format::Markdown ? "**\n\n" : "\n");
    for (std::size_t i = 0; i < section.rows.size(); ++i) {
        const Row& row = section.rows[i];
        if (format == Format::Markdown) {
            for (const std::string& cell : row) {
                to << "| " << cell << ' ';
            }
            to << "|\n";
            if (i == 0) {
                to << "|---|" << [&] {
                    std::string dashes;
                    for (std::size_t k = 1; k < row.size(); ++k) {
                        dashes += "---:|";
                    }
                    return dashes;
                }() << '\n';
            }
            continue;
        }
        for (std::size_t k = 0; k < row.size(); ++k) {
            to << Padded(row[k], k == 0 ? 42 : 12, k != 0);
        }
        to << '\n';
    }
}

class Reporter {
public:
    Reporter(const Results& results, const Works& works, const std::vector<Document>& documents)
        : m_results(results), m_works(works), m_documents(documents) {}

    /// The works in the order in which they are told of.
    std::vector<std::string> WorkNames() const {
        std::vector<std::string> names;
        for (const Target& target : targets) {
            names.push_back(target.work);
        }
        return names;
    }

    Section Ratios(const std::string& work) const {
        return Collect(work, Target(), true, [&](const std::string& contender, const Document& document) {
            return Ratio({work, contender, document.name}, {loadWork, baseContender, document.name});
        });
    }

    Section Memory() const {
        Section all{"peak memory of a load, bytes per byte of the document", {}};
        for (const std::string& work : {loadWork, readOnlyWork}) {
            Section part =
                Collect(work, memoryTarget, true, [&](const std::string& contender, const Document& document) {
                    return Find(m_results.bytesPerByte, {work, contender, document.name});
                });
            for (std::size_t i = all.rows.empty() ? 0 : 1; i < part.rows.size(); ++i) {
                part.rows[i][0] += i > 0 && work == readOnlyWork ? ", read-only" : "";
                all.rows.push_back(part.rows[i]);
            }
        }
        return all;
    }

    /// How many times longer a work takes on ten times the entries.
    Section Growth() const {
        Section section{"growth, W1 100k against 10k (10 is linear)", {{"", "Must", "Aim", "times"}}};
        for (const std::string& work : WorkNames()) {
            for (const Offer& offer : m_works.offers) {
                const auto growth = Ratio({work, offer.contender, "W1 100k"}, {work, offer.contender, "W1 10k"});
                if (offer.work == work && growth) {
                    const bool isOurs = offer.contender == ours;
                    section.rows.push_back({offer.contender + ": " + work, isOurs ? growthTarget.must : "",
                                            isOurs ? growthTarget.aim : "", Number(*growth)});
                }
            }
        }
        return section;
    }

    /// Runs in the same time, two threads against one, each on documents of its own.
    Section Threads() const {
        return Collect("threads", threadsTarget, false, [&](const std::string& contender, const Document& document) {
            const std::string& work = document.kind == Kind::Packets ? packetWork : loadWork;
            const auto slowdown = Ratio({work, contender, document.name, 2}, {work, contender, document.name, 1});
            return slowdown ? std::optional(2 / *slowdown) : std::nullopt;
        });
    }

    Section Packets() const {
        Section section{packetWork, {{"", "Must", "Aim", "times", "1000/s"}}};
        for (const Document& document : m_documents) {
            for (const Offer& offer : m_works.offers) {
                const Measured measured{packetWork, offer.contender, document.name};
                const auto times = Ratio({packetWork, packetBase, document.name}, measured);
                if (offer.work == packetWork && times) {
                    const double rate =
                        static_cast<double>(document.packets.size()) / m_results.seconds.at(measured) / 1000;
                    const bool isOurs = offer.contender == ours;
                    section.rows.push_back({offer.contender, isOurs ? targets.back().must : "",
                                            isOurs ? targets.back().aim : "", Number(*times), Number(rate)});
                }
            }
        }
        return section;
    }

private:
    using Figure = std::function<std::optional<double>(const std::string& contender, const Document& document)>;

    static std::optional<double> Find(const std::map<Measured, double>& all, const Measured& measured) {
        const auto found = all.find(measured);
        return found == all.end() ? std::nullopt : std::optional(found->second);
    }
    std::optional<double> Ratio(const Measured& measured, const Measured& base) const {
        const auto time = Find(m_results.seconds, measured);
        const auto baseTime = Find(m_results.seconds, base);
        return time && baseTime ? std::optional(*time / *baseTime) : std::nullopt;
    }

    std::vector<std::string> Contenders(const std::string& work, bool hasWork) const {
        std::vector<std::string> names;
        for (const Offer& offer : m_works.offers) {
            if ((!hasWork || offer.work == work) && std::ranges::count(names, offer.contender) == 0) {
                names.push_back(offer.contender);
            }
        }
        return names;
    }

    /// One row for each contender with a figure, one column for each document.
    Section Collect(const std::string& work, Target target, bool hasWork, const Figure& figure) const {
        if (const auto found = std::ranges::find(targets, work, &Target::work);
            found != targets.end() && target.must.empty()) {
            target = *found;
        }
        Section section{work, {{"", "Must", "Aim"}}};
        for (const Document& document : m_documents) {
            section.rows[0].push_back(document.name);
        }
        for (const std::string& contender : Contenders(work, hasWork)) {
            Row row = {contender, contender == ours ? target.must : "", contender == ours ? target.aim : ""};
            bool hasFigure = false;
            for (const Document& document : m_documents) {
                const auto value = figure(contender, document);
                hasFigure = hasFigure || value;
                row.push_back(value ? Number(*value) : "");
            }
            if (hasFigure) {
                section.rows.push_back(row);
            }
        }
        return section;
    }

    const Results& m_results;
    const Works& m_works;
    const std::vector<Document>& m_documents;
};

} // namespace

void Bench::PrintReport(std::ostream& to, const Results& results, const Works& works,
                        const std::vector<Document>& documents, Format format) {
    const Reporter reporter(results, works, documents);
    for (const std::string& work : reporter.WorkNames()) {
        Print(to, work == packetWork ? reporter.Packets() : reporter.Ratios(work), format);
    }
    Print(to, reporter.Memory(), format);
    Print(to, reporter.Growth(), format);
    Section threads = reporter.Threads();
    threads.title = "runs in the same time, 2 threads against 1 (W1, W2: load, later editable)";
    Print(to, threads, format);
}
