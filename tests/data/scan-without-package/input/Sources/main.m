NSLocalizedString(@"Never seen", @"");
