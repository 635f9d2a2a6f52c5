// The desktop program.
#include "program/RunDesktop.h"

int main(int, char** words)
{
    return program::RunDesktop(words[0], {});
}
