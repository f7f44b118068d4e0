#include "Memory.h"

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <memory>

#include <malloc.h>
#include <unistd.h>

using namespace Bench;

namespace {

/// A line of /proc/self/status, in bytes.
std::size_t StatusBytes(const std::string& name) {
    std::ifstream status("/proc/self/status");
    for (std::string line; std::getline(status, line);) {
        if (line.starts_with(name + ':')) {
            return std::stoul(line.substr(name.size() + 1)) * 1024;
        }
    }
    throw std::runtime_error("/proc/self/status has no " + name);
}

/// Sets the highest resident memory back to what is resident now.
void ForgetPeak() {
    std::ofstream refs("/proc/self/clear_refs");
    refs << "5" << std::flush;
    Require(refs.good(), "/proc/self/clear_refs cannot be written");
}

/// What one load takes at its peak, in a process that has done nothing else: resident memory when it was at its
/// highest, less what was resident when the document's text, the libraries and their tables were already there. The
/// result of the load is alive at the end.
std::size_t PeakBytesOfLoad(const Offer& offer, const Document& document) {
    const Document small =
        document.kind == Kind::Translations ? MakeTranslations("", {.entries = 20}) : MakeStates("", {.bytes = 20'000});
    offer.make(small).run(); // pages of code, tables made on first use
    const Work work = offer.make(document);
    malloc_trim(0);
    ForgetPeak();
    const std::size_t before = StatusBytes("VmRSS");
    work.run();
    return StatusBytes("VmHWM") - before;
}

std::string Quoted(const std::string& text) {
    return '\'' + text + '\'';
}

std::string OutputOf(const std::string& command) {
    const std::unique_ptr<FILE, decltype(&pclose)> pipe(popen(command.c_str(), "r"), pclose);
    Require(pipe != nullptr, "cannot run " + command);
    std::string output;
    for (int read = std::fgetc(pipe.get()); read != EOF; read = std::fgetc(pipe.get())) {
        output += static_cast<char>(read);
    }
    return output;
}

} // namespace

void Bench::MeasureMemory(const Works& works, const std::vector<Document>& documents, const std::string& filter,
                          Results& results) {
    const std::string program = std::filesystem::read_symlink("/proc/self/exe");
    for (const Document& document : documents) {
        if (document.kind == Kind::Packets) {
            continue;
        }
        const std::string file = "/dev/shm/FrameworkBenchmark." + std::to_string(getpid()) + ".xml";
        std::ofstream(file) << document.text;
        for (const Offer& offer : works.offers) {
            if ((offer.work == loadWork || offer.work == readOnlyWork) && IsWanted(offer, document, filter)) {
                const char* const kind = document.kind == Kind::Translations ? " translations " : " states ";
                const std::string output = OutputOf(Quoted(program) + ' ' + memoryFlag + ' ' + Quoted(offer.work) +
                                                    ' ' + Quoted(offer.contender) + kind + Quoted(file));
                results.bytesPerByte[{offer.work, offer.contender, document.name}] =
                    std::stod(output) / static_cast<double>(document.text.size());
            }
        }
        std::filesystem::remove(file);
    }
}

int Bench::MeasureMemoryHere(const Works& works, const std::vector<std::string>& words) {
    const auto offer = std::ranges::find_if(
        works.offers, [&](const Offer& each) { return each.work == words.at(0) && each.contender == words.at(1); });
    Require(offer != works.offers.end(), words.at(1) + " does not offer: " + words.at(0));
    const Kind kind = words.at(2) == "states" ? Kind::States : Kind::Translations;
    std::ifstream file(words.at(3));
    const Document document{"", kind, std::string(std::istreambuf_iterator<char>(file), {}), "", {}};
    std::cout << PeakBytesOfLoad(*offer, document) << '\n';
    return 0;
}
