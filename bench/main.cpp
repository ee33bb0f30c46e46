#include "bench/Class_sizes.h"

#include <benchmark/benchmark.h>

int main(int count, char** arguments)
{
    print_class_sizes();
    benchmark::Initialize(&count, arguments);
    if (benchmark::ReportUnrecognizedArguments(count, arguments))
        return 1;
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
}
