// What one call costs that waits until the disk has a block appended to a file: the median in microseconds.

#include <algorithm>
#include <array>
#include <chrono>
#include <fcntl.h>
#include <iostream>
#include <string>
#include <unistd.h>
#include <vector>

int main(int count, char** arguments)
{
    if (count != 3) {
        std::cerr << "usage: floor-durable FILE TIMES\n";
        return 2;
    }
    const auto file = ::open(arguments[1], O_WRONLY | O_CREAT | O_TRUNC, 0600);
    const std::array<char, 4096> block {};
    std::vector<double> times;
    for (auto left = std::stoi(arguments[2]); left > 0; --left) {
        if (::write(file, block.data(), block.size()) != static_cast<ssize_t>(block.size())) {
            return 1;
        }
        const auto start = std::chrono::steady_clock::now();
        if (::fdatasync(file) != 0) {
            return 1;
        }
        times.push_back(std::chrono::duration<double, std::micro>(std::chrono::steady_clock::now() - start).count());
    }
    ::close(file);
    ::unlink(arguments[1]);
    std::sort(times.begin(), times.end());
    std::cout << times[times.size() / 2] << '\n';
    return 0;
}
