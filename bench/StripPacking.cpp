#include "bench/StripPacking.h"

#include <fstream>
#include <sstream>
#include <stdexcept>

namespace tarn {

namespace {

std::ifstream Opened(const std::string& path) {
    std::ifstream file(path);
    if (!file) {
        throw std::runtime_error(path + " cannot be read");
    }
    return file;
}

void ReadPieces(const std::string& path, PackingInstance& instance) {
    std::ifstream file = Opened(path);
    std::size_t count = 0;
    file >> instance.Job.Width >> count;
    for (std::size_t i = 0; i < count && file; ++i) {
        ImproveFill piece{0, 0, 1};
        file >> piece.Width >> piece.Length;
        instance.Job.Fills.push_back(piece);
    }
    if (!file) {
        throw std::runtime_error(path + " ends before its last piece");
    }
}

} // namespace

std::vector<PackingInstance> ReadPackingInstances(const std::string& folder) {
    std::ifstream index = Opened(folder + "/index.csv");
    std::vector<PackingInstance> instances;
    std::string line;
    std::getline(index, line); // the header
    while (std::getline(index, line)) {
        std::istringstream fields(line);
        PackingInstance instance;
        std::string width;
        std::string count;
        std::string bound;
        std::string best;
        std::getline(fields, instance.Set, ',');
        std::getline(fields, instance.Name, ',');
        std::getline(fields, width, ',');
        std::getline(fields, count, ',');
        std::getline(fields, bound, ',');
        std::getline(fields, best, ',');
        instance.Best = std::stoi(best);
        ReadPieces(folder + "/" + instance.Set + "/" + instance.Name + ".txt", instance);
        instances.push_back(std::move(instance));
    }
    return instances;
}

} // namespace tarn
