// Stands for the headers that all tests share; CMakeLists.txt names them.
