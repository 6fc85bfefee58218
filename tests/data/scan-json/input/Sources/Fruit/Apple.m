// NSLocalizedString(@"In a comment", @"Is scanned all the same")
- (void)draw {
    title = NSLocalizedString(@"Apples", @"Title");
    again = NSLocalizedString(@"Apples", @"Title");
    twice = NSLocalizedString(@"Apples", @"On the box, \"large\"");
    NSLocalizedString(key, @"A variable is no key");
}
