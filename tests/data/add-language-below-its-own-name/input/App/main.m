NSLocalizedString(@"Hello", @"Greeting");
