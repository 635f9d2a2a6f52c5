// SPDX-License-Identifier: Zlib
#include "base/RuntimeError.h"

namespace base
{
std::string ErrorDescription(std::int32_t number)
{
    switch (number)
    {
    case ErrorOverflow:
        return "Overflow";
    case ErrorMemory:
        return "Memoria esaurita";
    case ErrorIndex:
        return "Indice non compreso nell'intervallo";
    case ErrorType:
        return "Tipo non corrispondente";
    case ErrorFileNotFound:
        return "Impossibile trovare il file";
    case ErrorPastEnd:
        return "Input oltre la fine del file";
    case ErrorAccess:
        return "Errore di accesso al percorso/file";
    case ErrorPathNotFound:
        return "Impossibile trovare il percorso";
    default:
        return "Errore definito dall'applicazione o dall'oggetto";
    }
}
}
