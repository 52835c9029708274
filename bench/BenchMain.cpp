// The one entry of zp_bench: every other file here only registers its benchmarks.
#include <benchmark/benchmark.h>

BENCHMARK_MAIN();
