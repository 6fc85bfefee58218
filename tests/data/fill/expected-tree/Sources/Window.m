@"not in the project file"; NSLocalizedString(@"Window", @"");
