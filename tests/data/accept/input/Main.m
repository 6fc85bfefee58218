NSLocalizedString(@"%d of %d", @"Place and count");
NSLocalizedString(@"Ebb tide", @"Menu");
