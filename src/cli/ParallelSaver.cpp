#include "cli/ParallelSaver.h"

#include "fileio/ModFileIO.h"

#include <atomic>
#include <thread>

namespace {

// Enough syncs in flight to share commits; more only add threads.
constexpr std::size_t kThreads = 8;

} // namespace

std::vector<bool> ParallelSaver::saveAll(const std::vector<std::pair<QString, QByteArray>>& files) {
    // Plain chars, not vector<bool>, whose elements share bytes across threads.
    std::vector<char> saved(files.size(), 0);
    std::atomic<std::size_t> next{0};
    const auto work = [&] {
        for (std::size_t i = next++; i < files.size(); i = next++)
            saved[i] = ModFileIO::saveFile(files[i].first, files[i].second);
    };
    std::vector<std::thread> threads;
    for (std::size_t t = 1; t < std::min(kThreads, files.size()); ++t)
        threads.emplace_back(work);
    work();
    for (std::thread& thread : threads)
        thread.join();
    return {saved.begin(), saved.end()};
}
