NSLocalizedString(@"C++", @"");
