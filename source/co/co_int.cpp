// Signed 64-bit integers. Contract: co_int.h.

#include <co/co_int.h>

int64_t coIntMax(int64_t a, int64_t b) { return a > b ? a : b; }
int64_t coIntMin(int64_t a, int64_t b) { return a < b ? a : b; }
