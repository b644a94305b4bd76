// Writes tests/cases/encryption-vectors anew: `write_encryption_vectors FOLDER`. What was written once stays readable,
// so there is no reason to do so but another version of a format.

#include "tests/vectors/EncryptionVectors.h"

#include <cstdlib>

int main(int argumentCount, char** arguments)
{
    return argumentCount == 2 && tarn::writeEncryptionVectors(arguments[1]) ? EXIT_SUCCESS : EXIT_FAILURE;
}
