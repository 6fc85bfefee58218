NSLocalizedString(@"Start", @"in the framework");
