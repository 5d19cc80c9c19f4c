#include <itunitechnik.h>

#include <stdio.h>

int main(int argc, char** argv)
{
    const double placement[9] = {0, 0, 0, 0, 0, 0, 0, 0, 0};
    const it_char16 empty[] = {0};
    it_char16 path[512];
    size_t i = 0;
    if (argc != 2) {
        return 2;
    }
    for (; argv[1][i] != '\0' && i + 1 < sizeof path / sizeof path[0]; ++i) {
        path[i] = (it_char16)(unsigned char)argv[1][i];
    }
    path[i] = 0;
    if (startOrder(1, 1, placement, 600, empty, 0.0, true) != 1 || endDocument(path) != 1) {
        return 1;
    }
    printf("consumer wrote %s\n", argv[1]);
    return 0;
}
