NSLocalizedString(@"Start", @"in the application");
