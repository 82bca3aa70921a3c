#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <random>
#include <vector>

// Runs a fuzz target without the fuzzer, where there is no clang: over the files of folders, and over each of them with some bytes changed.
//     TARGET ROUNDS FOLDER ...

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* pData, std::size_t size);

namespace {

using Bytes = std::vector<uint8_t>;

Bytes contentOf(const std::filesystem::path& path)
{
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

Bytes changed(Bytes bytes, std::mt19937& random)
{
    for (unsigned changes = 1 + random() % 4; changes > 0 && !bytes.empty(); --changes) {
        const auto place = static_cast<std::ptrdiff_t>(random() % bytes.size());
        switch (random() % 4) {
        case 0: bytes[static_cast<std::size_t>(place)] = static_cast<uint8_t>(random()); break;
        case 1: bytes[static_cast<std::size_t>(place)] ^= static_cast<uint8_t>(1U << random() % 8); break;
        case 2: bytes.insert(bytes.begin() + place, static_cast<uint8_t>(random())); break;
        default: bytes.erase(bytes.begin() + place, bytes.begin() + std::min<std::ptrdiff_t>(place + random() % 8, std::ssize(bytes))); break;
        }
    }
    return bytes;
}

} // namespace

int main(int count, char** arguments)
{
    std::size_t executions = 0;
    std::mt19937 random; // the same numbers each time
    const int rounds = count > 1 ? std::atoi(arguments[1]) : 0;
    for (int i = 2; i < count; ++i) {
        std::vector<std::filesystem::path> paths;
        for (const auto& entry : std::filesystem::directory_iterator(arguments[i]))
            paths.push_back(entry.path());
        std::sort(paths.begin(), paths.end());
        for (const auto& path : paths) {
            Bytes bytes = contentOf(path);
            for (int round = 0; round <= rounds; ++round, ++executions) {
                const Bytes input = round == 0 ? bytes : changed(bytes, random);
                // The input is the last that is seen of a run that fails.
                if (std::ofstream last("last-input", std::ios::binary); last)
                    last.write(reinterpret_cast<const char*>(input.data()), std::ssize(input));
                LLVMFuzzerTestOneInput(input.data(), input.size());
            }
        }
    }
    std::cout << executions << " executions\n";
    return executions > 0 ? 0 : 1;
}
