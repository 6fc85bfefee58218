int main(void) {
    puts(NSLocalizedString(@"Cancel", @"Question at the end").UTF8String);
    return 0;
}
