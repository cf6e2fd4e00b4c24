// Reads strings before, or after, they are released. For valgrind.

#include <co/co.h>
#include <cstring>

int main(int argc, char **argv) {
    bool const isReleased = argc > 1 && std::strcmp(argv[1], "after") == 0;
    int64_t sum = 0;
    for (int i = 0; i < 10; i++) {
        struct coString *string = coStringCreateFromCstr("text", -1);
        coStringRetain(string);
        coStringRelease(string);
        if (isReleased) coStringRelease(string);
        sum += coStringLength(string);
        if (!isReleased) coStringRelease(string);
    }
    return sum == 40 ? 0 : 1;
}
