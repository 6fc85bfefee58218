NSLocalizedString(@"Say \"Hi\"", @"greeting \"x\"")
