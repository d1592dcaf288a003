#include "tests/support/RegisteredTest.h"

#include <cstdio>
#include <map>
#include <string>
#include <utility>

namespace {

std::map<std::string, RegisteredTests::Run>& tests() {
    static std::map<std::string, RegisteredTests::Run> all;
    return all;
}

} // namespace

void RegisteredTests::add(const char* name, Run run) {
    tests().emplace(name, std::move(run));
}

int RegisteredTests::run(int argc, char** argv) {
    const auto found = argc > 1 ? tests().find(argv[1]) : tests().end();
    if (found != tests().end()) {
        return found->second(argc - 1, argv + 1);
    }
    std::fprintf(stderr, "The first argument is one of these test classes:\n");
    for (const auto& [name, test] : tests()) {
        std::fprintf(stderr, "    %s\n", name.c_str());
    }
    return 1;
}
