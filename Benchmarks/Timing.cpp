#include "Timing.h"

#include <algorithm>
#include <iostream>
#include <memory>
#include <thread>

#include <benchmark/benchmark.h>

#include "Clocks.h"

using namespace Bench;

namespace {

constexpr std::size_t threadedLimit = 2'000'000; ///< larger documents are not timed with two threads

std::size_t BytesOf(const Document& document) {
    std::size_t bytes = document.packets.empty() || document.kind != Kind::Packets ? document.text.size() : 0;
    for (const std::string& packet : document.packets) {
        bytes += packet.size();
    }
    return bytes;
}

void RunOnce(const Work& work) {
    if (work.prepare) {
        work.prepare();
    }
    work.run();
}

/// Counts the processor time of this thread.
void TimeWork(benchmark::State& state, const Offer& offer, const Document& document) {
    const Work work = offer.make(document);
    RunOnce(work);
    for ([[maybe_unused]] auto _ : state) {
        if (work.prepare) {
            work.prepare();
        }
        const double start = ThreadSeconds();
        work.run();
        state.SetIterationTime(ThreadSeconds() - start);
    }
}

/// Lets each thread do the work on its own several times, what it makes freed in between, and counts until all are
/// done.
void TimeThreads(benchmark::State& state, const Offer& offer, const Document& document, int threads) {
    std::vector<Work> works;
    for (int i = 0; i < threads; ++i) {
        works.push_back(offer.make(document));
        RunOnce(works.back());
    }
    const std::size_t runs = std::max<std::size_t>(3, 8'000'000 / BytesOf(document));
    for ([[maybe_unused]] auto _ : state) {
        const double start = WallSeconds();
        std::vector<std::thread> running;
        for (const Work& work : works) {
            running.emplace_back([&work, runs] {
                for (std::size_t i = 0; i < runs; ++i) {
                    RunOnce(work);
                }
            });
        }
        for (std::thread& thread : running) {
            thread.join();
        }
        state.SetIterationTime((WallSeconds() - start) / static_cast<double>(runs));
    }
}

int RoundsFor(std::size_t bytes) {
    return bytes < 2'000'000 ? 9 : bytes < 20'000'000 ? 5 : 3;
}

/// Takes the rounds as they come, and the median at the end.
class Collector : public benchmark::BenchmarkReporter {
public:
    explicit Collector(std::vector<Measured> measured) : m_measured(std::move(measured)) {}

    bool ReportContext(const Context&) override { return true; }
    void ReportRuns(const std::vector<Run>& runs) override {
        for (const Run& run : runs) {
            if (run.error_occurred) {
                throw std::runtime_error(run.benchmark_name() + ": " + run.error_message);
            }
            if (run.run_type == Run::RT_Iteration) {
                m_rounds[std::stoul(run.run_name.function_name)].push_back(run.real_accumulated_time /
                                                                           static_cast<double>(run.iterations));
            }
        }
    }
    std::map<Measured, double> Medians() {
        std::map<Measured, double> medians;
        for (auto& [number, rounds] : m_rounds) {
            const auto middle = rounds.begin() + static_cast<std::ptrdiff_t>(rounds.size() / 2);
            std::nth_element(rounds.begin(), middle, rounds.end());
            medians[m_measured[number]] = *middle;
        }
        return medians;
    }

private:
    std::vector<Measured> m_measured;
    std::map<std::size_t, std::vector<double>> m_rounds;
};

/// Registers what is to be timed under its number in `measured`.
void Register(const Offer& offer, const Document& document, int threads, std::vector<Measured>& measured) {
    const std::size_t bytes = BytesOf(document);
    const auto body = [&offer, &document, threads](benchmark::State& state) {
        threads == 0 ? TimeWork(state, offer, document) : TimeThreads(state, offer, document, threads);
    };
    const std::size_t iterations = threads == 0 ? std::max<std::size_t>(1, 2'000'000 / bytes) : 1;
    benchmark::RegisterBenchmark(std::to_string(measured.size()).c_str(), body)
        ->UseManualTime()
        ->Repetitions(RoundsFor(bytes))
        ->Iterations(static_cast<benchmark::IterationCount>(iterations));
    measured.push_back({offer.work, offer.contender, document.name, threads});
}

} // namespace

Results Bench::TimeAll(const Works& works, const std::vector<Document>& documents, const std::string& filter) {
    std::vector<Measured> measured;
    for (const Offer& offer : works.offers) {
        for (const Document& document : documents) {
            if (!IsWanted(offer, document, filter)) {
                continue;
            }
            Register(offer, document, 0, measured);
            if ((offer.work == loadWork || offer.work == packetWork) && BytesOf(document) < threadedLimit) {
                Register(offer, document, 1, measured);
                Register(offer, document, 2, measured);
            }
        }
    }
    std::string program = "Benchmarks";
    std::string mixed = "--benchmark_enable_random_interleaving=true";
    char* arguments[] = {program.data(), mixed.data(), nullptr};
    int count = 2;
    benchmark::Initialize(&count, arguments);
    Collector collector(measured);
    benchmark::RunSpecifiedBenchmarks(&collector);
    return {collector.Medians(), {}};
}
