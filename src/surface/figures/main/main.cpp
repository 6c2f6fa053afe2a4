#include <string>
#include <vector>

#include "surface/figures/Figures.h"

int main(int argc, char** argv) {
    const std::vector<std::string> words(argv + 1, argv + argc);
    return RunFigures(words);
}
