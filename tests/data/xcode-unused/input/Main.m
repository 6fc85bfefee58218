NSLocalizedString(@"Called", @"Comment");
id keys = @[@"In a source"];
NSLocalizedString(@"No file has it", nil);
