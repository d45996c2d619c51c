#include "entry.h"

int main(int argc, char** argv)
{
    return runWizard(argc, argv);
}
