import Quillmere.App
import Quillmere.Onboarding

// The welcome over the main window, in a file of its own because only a newcomer's start loads it.
// Its second way in asks for a folder: a prefix opens the program, any other folder does not.
OnboardingSheet {
    id: root

    required property ContentViewModel viewModel

    shown: viewModel.showsOnboarding

    onFinished: viewModel.finishOnboarding()
    onSelectPrefixRequested: viewModel.prefixSelection.requestChooser()
}
