// SPDX-License-Identifier: MIT
#include "shell/frm_main.h"

int main(int argc, char** argv) { return Program::Main(argc, argv); }
