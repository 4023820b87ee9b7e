#include "app/Program.h"

int main(int argc, char** argv) {
    return app::Program(argc, argv).run();
}
