// Runs the update servers for tests that aren't C++: says where they are and where their files lie,
// and stops them at the end of its input.
#include <iostream>
#include <limits>

#include "support/UpdateServers.h"

int main() {
  const quillet::UpdateServers oServers;
  std::cout << oServers.WebServer() << '\n'
            << oServers.FtpServer() << '\n'
            << oServers.Folder() << std::endl;
  std::cin.ignore(std::numeric_limits<std::streamsize>::max());
}
