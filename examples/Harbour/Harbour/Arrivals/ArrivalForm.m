#import "ArrivalForm.h"

#import "VesselValidator.h"

@implementation ArrivalForm {
    VesselValidator *_validator;
}

- (void)viewDidLoad {
    [super viewDidLoad];
    self.title = NSLocalizedString(@"New arrival", @"Title of the form");
    [self addField:NSLocalizedString(@"Name of the boat", @"Field of the form")];
    [self addField:NSLocalizedString(@"Home port", @"Field of the form")];
    [self addField:NSLocalizedString(@"Length over all", @"Field of the form")];
    [self addField:NSLocalizedString(@"Draught", @"Field of the form")];
    [self addField:NSLocalizedString(@"Crew aboard", @"Field of the form")];
    [self addField:NSLocalizedString (@"Nights", @"Field of the form: how long the boat stays")];
}

- (void)addButtons {
    self.navigationItem.leftBarButtonItem =
        [[UIBarButtonItem alloc] initWithTitle:NSLocalizedString(@"Cancel", @"Drops the form")
                                         style:UIBarButtonItemStyleBordered
                                        target:self
                                        action:@selector(cancel:)];
    self.navigationItem.rightBarButtonItem =
        [[UIBarButtonItem alloc] initWithTitle:NSLocalizedString(@"Welcome aboard", @"Sends the form to the harbour office")
                                         style:UIBarButtonItemStyleDone
                                        target:self
                                        action:@selector(send:)];
}

- (void)addField:(NSString *)title {
    UITextField *field = [[UITextField alloc] init];
    field.placeholder = title;
    [self.view addSubview:field];
}

- (void)send:(id)sender {
    NSString *problem = [_validator problemWithForm:self];
    if (problem) {
        self.navigationItem.prompt = NSLocalizedString(problem, @"The validator's sentence");
        return;
    }
    self.navigationItem.prompt = NSLocalizedString(@"The harbour office has been told.", @"Shown after sending");
}

- (void)cancel:(id)sender {
    UIActionSheet *sheet =
        [[UIActionSheet alloc] initWithTitle:NSLocalizedString(@"Throw away what you wrote?", @"Question before leaving")
                                    delegate:nil
                           cancelButtonTitle:NSLocalizedString(@"Cancel", @"Drops the form")
                      destructiveButtonTitle:NSLocalizedString(@"Throw away", @"Leaves the form")
                           otherButtonTitles:nil];
    [sheet showInView:self.view];
}

@end
