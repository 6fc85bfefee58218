x = NSLocalizedString(@"Open", nil);
