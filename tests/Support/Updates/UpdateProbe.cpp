// A program small enough to be packaged, for the tests of updates.
#include "Support/Updates/PathExchange.h"

#include <cstdlib>

int main(int argc, char *argv[])
{
    return PathExchange::serve(argc, argv).value_or(EXIT_FAILURE);
}
