// Prints docs/host-calls.md as the adapter's list of host members makes it.
#include <fcntl.h>
#include <io.h>

#include <cstdio>
#include <iostream>

#include "win/adapter/HostMembers.h"

int main() {
    _setmode(_fileno(stdout), _O_BINARY);  // the page has "\n" line ends on every system
    std::cout << win::adapter::HostMembersMarkdown();
    return 0;
}
