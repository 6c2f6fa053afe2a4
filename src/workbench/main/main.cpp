#include <iostream>

#include "workbench/Workbench.h"

int main(int nArguments, char** arrArguments) {
    return RunWorkbench({arrArguments + 1, arrArguments + nArguments}, std::cout, std::cerr);
}
