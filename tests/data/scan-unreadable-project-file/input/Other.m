NSLocalizedString(@"Any source counts", @"");
