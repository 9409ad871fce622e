// What a C++ program costs that does nothing.
int main() {
    return 0;
}
